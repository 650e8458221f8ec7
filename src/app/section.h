#pragma once

/// A scene. Each has one global object that lives for the whole run; a scene asks for another by assigning that
/// object's address to `requestedSection`. A false result from any operation ends the program.
class CSection
{
public:
    virtual ~CSection() = default;

    /// The scene becomes current: acquire what it needs.
    virtual bool SectionBegin() = 0;
    /// The scene stops being current: release what it acquired.
    virtual bool SectionEnd() = 0;
    /// One frame: read input, update, draw into `backBuffer`.
    virtual bool SectionProcess() = 0;
};

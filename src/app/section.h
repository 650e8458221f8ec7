#pragma once

/// A scene. Each has one global object that lives for the whole run; scenes.h tells how they ask for each other. A
/// false result from any operation ends the program.
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

#pragma once

#include "platform/types.h"

/// An object of DirectDraw or DirectSound that its one reference keeps: releasing it destroys the object.
template <class Interface>
class COneReference : public Interface
{
public:
    COneReference() = default;
    virtual ~COneReference() = default;
    COneReference(const COneReference&) = delete;
    COneReference& operator=(const COneReference&) = delete;

    ULONG Release() final
    {
        delete this;
        return 0;
    }
};

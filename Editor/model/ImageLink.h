// A line of a phase: an atom that stands for a picture elsewhere in the library.
#pragma once

#include "Editor/model/LibraryContext.h"
#include "Editor/model/PhaseText.h"
#include "Editor/model/PictureMember.h"

namespace editor
{

class CPhase;

// A link stays a link when its picture is missing; its error tells.
class CImageLink : public hostkit::With<CPictureMember, IImageLink>
{
public:
    CImageLink(CPhase* pPhase, UINT nIndex);
    ~CImageLink() override { Context().links.erase(this); }

    int Position() const { return static_cast<int>(Index()); } // in the phase, from 0; -1 when its line has gone
    std::string_view Name() const override;
    std::string Path() const override;        // of the picture; empty when it lies outside the library
    std::string ErrorReason() const override; // also which picture is missing

private:
    std::string_view Line() const;
    PicturePlace Place() const;
};

} // namespace editor

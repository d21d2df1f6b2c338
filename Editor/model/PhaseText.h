// The text of a phase, line by line.
#pragma once

#include "Editor/disk/TextFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace editor
{

// A line that names a picture.
struct PictureLine
{
    std::size_t at, size;     // in the text, with the line's end
    std::string_view picture; // the path, without blanks around it; in the text
};

// The lines that name pictures, in order: all but empty ones and those that begin with #.
std::vector<PictureLine> PictureLines(std::string_view text);

inline constexpr std::size_t kLargestPhase = 4 << 20; // bytes; far more than any phase needs

// The whole file. Empty when it has been read; else the reason, also when it can be no phase.
std::string ReadPhaseText(const std::string& path, std::string& text);
bool IsPhaseText(std::string_view text); // could it be one?

// Writes the whole file over what is known to be in it; a link that leads to no phase is not followed. Empty when it is
// done, else the reason.
std::string WritePhaseText(const std::string& path, const TextState& former, const std::string& text);

bool LeadsNowhere(int error); // the error number of a path: there is nothing

// Where the picture of a line in a phase in `folder` may be, inside the library with this root: beside the phase and,
// failing that, from the root on.
std::vector<std::string> PlacesOf(std::string_view picture, const std::string& folder, const std::string& root);

// Where the picture is that a line of a phase in `folder` names, in the library with this root: beside the phase or,
// failing that, from the root on. Where there is none, the path beside the phase, or from the root on, that is inside
// the library; empty when the line leads out of it.
struct PicturePlace
{
    std::string path;
    bool isThere = false;
    int error = 0; // why that cannot be told
};
PicturePlace FindPicture(std::string_view picture, const std::string& folder, const std::string& root);

// What names the picture at `path` in a phase in `folder`: the shortest way that leads there. Empty when no line can
// name it: it lies outside the library, or its name holds the end of a line; or, with an error number, when nobody can
// tell what a line would lead to.
std::string LineFor(const std::string& path, const std::string& folder, const std::string& root, int& error);

// The text is that of a phase that comes to `folder` from `formerFolder`, in the same library. Lines that lead to no
// picture any more are rewritten to lead to where they led to; all else stays byte for byte. Empty when it is done;
// else the picture and the reason why nobody can tell where a line leads to.
std::string Relocate(std::string& text, const std::string& formerFolder, const std::string& folder,
                     const std::string& root);

// With the line behind the last one; the text ends as its lines do.
std::string WithLine(std::string text, std::string_view line);
// With these lines before that one of its lines, or behind the last one. Lines are those that name pictures, counted
// from 0; what stands between them stays where it is.
std::string WithLines(std::string text, const std::vector<std::string>& lines, std::size_t nBefore);
// With some of its lines, which are in order, all before that one.
std::string WithLinesMoved(std::string text, const std::vector<std::size_t>& moved, std::size_t nBefore);
// With each of them one place earlier, or later; those that have come to that end stay. `places`, in order, become
// where they are then.
std::string WithLinesShifted(std::string text, std::vector<std::size_t>& places, bool bLater);

} // namespace editor

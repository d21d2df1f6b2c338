// The commands on atoms: copying and cutting, pasting, removing.
//
// They act on the atoms that are active in the atom editor. Every view hears of what came or went. All of them fail
// without an atom editor, and nothing is changed then. All but CheckPaste show the wait cursor while they work.
#pragma once

#include "Views/host/Api.h"

#include <functional>

class COleDataSource;
class IArchive;
class IAtomContainer;

// What CheckPaste says.
inline constexpr DWORD PASTE_REFUSED = 0;
inline constexpr DWORD PASTE_COPY = 1;         // as a copy only; the same as DROPEFFECT_COPY
inline constexpr DWORD PASTE_ANY = 0xFFFFFFFF; // with whatever effect the user asks for

// Puts the active atoms on the clipboard, under the editor's format, as the path handle of a new transfer file, which
// goes when the clipboard lets go of it. With bCut they are then removed from their containers.
//
// FALSE, and the clipboard is as it was, when nothing could be written or some atom may not be removed. A cut that does
// not come about puts back what it had removed: each into its container again, as what AddAtom makes of it, since the
// old atoms are gone. Whatever the toolkit raises when the clipboard cannot be had passes to the caller.
VIEWS_API int CopyObjects(int bCut);
// The same, with what a host offers to other programs besides: `offer` adds it to the data, when what is cut has gone
// from its place, just before it is published.
VIEWS_API int CopyObjects(int bCut, const std::function<void(COleDataSource& source)>& offer);

// Adds the archive's atoms to the container: under their own names when they are being moved, else each under a valid
// name. FALSE when the archive cannot be read, or the container refuses an atom: those before it have been added then.
VIEWS_API int PasteObjects(IArchive* pArchive, IAtomContainer* pContainer, int bMove);

// May the archive's atoms be pasted into the container (NULL: refused)? One of the values above, which the last atom
// looked at decides; looking ends at the first that is refused. A move is refused, too, where a member of that name is
// there already. Changes nothing.
VIEWS_API DWORD CheckPaste(IArchive* pArchive, IAtomContainer* pContainer, int bMove);

// Removes the active atoms from their containers, after asking the user when bConfirm is set. TRUE also when the user
// says no, and when atoms stay because their containers do not let them go.
VIEWS_API int RemoveObjects(int bConfirm);

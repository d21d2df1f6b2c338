// The names of atoms in their containers.
//
// What makes a name valid is the container's affair. Arguments are borrowed.
#pragma once

#include "Views/host/Api.h"

class CString;
class IAtom;
class IAtomContainer;

// A name under which pContainer would take pAtom as a new member, made of the atom's own name. FALSE, and strName is
// as it was, when the atom's name cannot be read, no valid name can be made of it, or memory runs out, which is
// reported. Both pointers must be given.
VIEWS_API int GetValidName(IAtom* pAtom, IAtomContainer* pContainer, CString& strName);

// May the atom's name be changed? APF_RENAME or 0. Without pContainer, the container that holds the atom is asked; 0
// when none does.
VIEWS_API int CanRenameObject(IAtom* pAtom, IAtomContainer* pContainer);

// Renames the atom in pContainer, or without one in the container that holds it, and tells every view: first that the
// atom under its new name, which is another atom, was created, then that pAtom was deleted.
//
// TRUE also, and nothing is told, when the atom bears that name already. FALSE, silently, for pAtom NULL, without a
// container, and when renaming is not permitted; FALSE after an error message when the container refuses. Without an
// atom editor it is FALSE, too, though the atom was renamed: no view has heard of it.
VIEWS_API int RenameObject(IAtom* pAtom, IAtomContainer* pContainer, const char* lpszNewName);

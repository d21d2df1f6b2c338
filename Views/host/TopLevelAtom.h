#pragma once

#include "Views/host/Api.h"

class IAtom;

// The topmost container above an atom, as the asked interface with a reference; for an atom without a container the
// atom itself, if it is a character library. FALSE, and *out is NULL, when there is none or it does not have the
// interface; FALSE, too, when pAtom or out is NULL. Costs one call for each level.
VIEWS_API BOOL GetTopLevelAtom(IAtom* pAtom, void** out, DWORD interfaceId);

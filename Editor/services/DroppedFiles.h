// What comes in from outside the views: files that another program offers by their URIs, and drops that need a second
// look.
#pragma once

#include "Toolkit/exchange/DataObject.h"
#include "Views/host/host.h"

#include <string>
#include <vector>

namespace editor
{

// Are there files that this container may take? Looks at the kinds of data alone, which costs nothing.
bool OffersFilesFor(COleDataObject& data, IAtomContainer* pContainer);
std::vector<std::string> OfferedPaths(COleDataObject& data); // of the files
// Copies of the files are added to the container, under names that are free, one after the other; of what a file
// manager has cut the originals then go to the trash. Empty when all were taken; else the reason for the first one that
// was not. A phase shows files of its library from then on, and takes no others.
std::string PasteFiles(COleDataObject& data, IAtomContainer* pContainer);

// A picture that is no file, as programs that draw copy it: it becomes one.
bool OffersPictureFor(COleDataObject& data, IAtomContainer* pContainer);
std::string PastePicture(COleDataObject& data, IAtomContainer* pContainer);

// A container that takes something as a copy only does not get it by a move. What comes into a phase also stays where
// it is, but nobody wants a folder in itself who has not asked for a copy with Ctrl: none then.
DROPEFFECT SafeEffect(DROPEFFECT effect, IAtomContainer* pContainer, bool bControl);

// Why a drop was not taken as a whole, as far as the editor knows.
std::string DropError();

} // namespace editor

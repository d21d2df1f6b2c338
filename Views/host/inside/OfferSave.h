#pragma once

namespace views
{

// Has what the user was working on saved before the work goes on in another view: asks every handler, about the
// top of the active atom's hierarchy. False when one refused; true, too, without an editor or an active atom.
bool OfferSave();

} // namespace views

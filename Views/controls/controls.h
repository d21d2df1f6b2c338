// Controls for a host's own panes, independent of the atom model.
//
// A control is made by its host, created as a child window and deleted by its host when its window is gone. It
// notifies its parent as the native control that it derives from does. User-interface thread only.
#pragma once

#include "Views/controls/DigitalEdit.h"

// The kit: what every program writes again that shows its objects in these views (Views/host/host.h), ready to use and
// to replace piece by piece.
#pragma once

#include "HostKit/Atom.h"
#include "HostKit/Commands.h"
#include "HostKit/ErrorInfo.h"
#include "HostKit/Frame.h"
#include "HostKit/Handler.h"
#include "HostKit/Host.h"
#include "HostKit/Names.h"
#include "Views/host/host.h"

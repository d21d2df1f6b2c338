// The kit: what every program writes again that shows its objects in these views (Views/host/host.h), ready to use and
// to replace piece by piece.
#pragma once

#include "HostKit/Host.h"
#include "HostKit/atoms/Atom.h"
#include "HostKit/atoms/Commands.h"
#include "HostKit/atoms/Handler.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/base/Names.h"
#include "HostKit/frame/Frame.h"
#include "Views/host/host.h"

#pragma once

#if defined(QTDESKTOP_EXPORTS)
#define QTDESKTOP_API __attribute__((visibility("default")))
#else
#define QTDESKTOP_API
#endif

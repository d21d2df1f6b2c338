#include "Editor/app/Display.h"

#include <QDir>
#include <QLibrary>
#include <QLibraryInfo>

namespace editor
{
namespace
{

std::string Environment(const char* pszName)
{
    return qEnvironmentVariable(pszName).toStdString();
}

// Connects as Qt will, with the library that Qt will use, the right to connect included.
bool AnswersX11()
{
    QLibrary xcb("xcb", 1);
    const auto connect = reinterpret_cast<void* (*)(const char*, int*)>(xcb.resolve("xcb_connect"));
    const auto hasError = reinterpret_cast<int (*)(void*)>(xcb.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<void (*)(void*)>(xcb.resolve("xcb_disconnect"));
    if (!connect || !hasError || !disconnect)
        return false;
    void* pConnection = connect(nullptr, nullptr);
    const bool bAnswers = hasError(pConnection) == 0;
    disconnect(pConnection);
    return bAnswers;
}

bool AnswersWayland()
{
    QLibrary wayland("wayland-client", 0);
    const auto connect = reinterpret_cast<void* (*)(const char*)>(wayland.resolve("wl_display_connect"));
    const auto disconnect = reinterpret_cast<void (*)(void*)>(wayland.resolve("wl_display_disconnect"));
    void* pDisplay = connect && disconnect ? connect(nullptr) : nullptr;
    if (pDisplay)
        disconnect(pDisplay);
    return pDisplay != nullptr;
}

bool QtKnowsWayland()
{
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return !plugins.entryList({"libqwayland*"}, QDir::Files).isEmpty();
}

// Someone who names Qt's platform knows why; only those without a screen are no display.
Display NamedDisplay(const std::string& platform)
{
    for (const char* pszName : {"offscreen", "minimal"}) {
        if (platform.starts_with(pszName))
            return {false, {}, "QT_QPA_PLATFORM asks for none ('" + platform + "')"};
    }
    return {true, platform, {}};
}

std::string Trouble(const std::string& x11, const std::string& wayland)
{
    if (!x11.empty())
        return "the display '" + x11 + "' does not answer";
    if (wayland.empty())
        return "neither DISPLAY nor WAYLAND_DISPLAY is set";
    if (!QtKnowsWayland())
        return "Qt's plugin for Wayland is missing (Debian's package qt6-wayland)";
    return "the Wayland display '" + wayland + "' does not answer";
}

} // namespace

Display FindDisplay()
{
    if (const std::string platform = Environment("QT_QPA_PLATFORM"); !platform.empty())
        return NamedDisplay(platform);
    const std::string x11 = Environment("DISPLAY");
    const std::string wayland = Environment("WAYLAND_DISPLAY");
    const bool bX11 = !x11.empty() && AnswersX11();
    const bool bWayland = !wayland.empty() && QtKnowsWayland() && AnswersWayland();
    if (bX11)
        return {true, bWayland ? "" : "xcb", {}};
    if (bWayland)
        return {true, "wayland", {}};
    return {false, {}, Trouble(x11, wayland)};
}

} // namespace editor

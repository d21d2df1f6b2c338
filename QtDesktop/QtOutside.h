// What lies outside the program: folders to choose, other programs, the file manager.
#pragma once

#include <optional>
#include <string>

class QWidget;

namespace qtdesktop
{

// Paths are absolute, in the file system's bytes. As toolkit::Desktop has it.
std::optional<std::string> AskForFolder(QWidget* pOwner, const std::string& title, const std::string& start);
std::string OpenWithItsProgram(const std::string& path);
std::string ShowInFileManager(const std::string& path); // where that cannot select it, the folder it is in

} // namespace qtdesktop

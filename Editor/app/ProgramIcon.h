// What stands for the program in title bars and task lists.
#pragma once

#include <QIcon>

namespace editor
{

QIcon MakeProgramIcon();

} // namespace editor

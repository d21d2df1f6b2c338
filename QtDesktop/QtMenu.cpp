#include "QtDesktop/QtMenu.h"

#include <QMenu>
#include <QPointer>

namespace qtdesktop
{
namespace
{

void AddItem(QMenu& menu, const toolkit::MenuItem& item);

void AddItems(QMenu& menu, const std::vector<toolkit::MenuItem>& items)
{
    for (const toolkit::MenuItem& item : items)
        AddItem(menu, item);
}

void AddItem(QMenu& menu, const toolkit::MenuItem& item)
{
    const QString text = QString::fromStdString(item.text);
    QAction* pAction = item.separator ? menu.addSeparator()
                       : item.popup   ? menu.addMenu(text)->menuAction()
                                      : menu.addAction(text);
    pAction->setEnabled(item.enabled);
    pAction->setCheckable(item.checked);
    pAction->setChecked(item.checked);
    pAction->setData(item.command);
    if (item.popup)
        AddItems(*pAction->menu(), item.items);
}

} // namespace

UINT TrackPopup(QWidget* pOwner, const std::vector<toolkit::MenuItem>& items, CPoint screen)
{
    // Its owner deletes the menu when it goes while the menu is open.
    const QPointer<QMenu> pMenu = new QMenu(pOwner);
    AddItems(*pMenu, items);
    const QAction* pChosen = pMenu->exec(QPoint(screen.x, screen.y));
    if (!pMenu)
        return 0;
    const UINT command = pChosen ? pChosen->data().toUInt() : 0;
    delete pMenu;
    return command;
}

} // namespace qtdesktop

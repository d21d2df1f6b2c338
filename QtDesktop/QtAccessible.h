// The toolkit's windows for screen readers and their like, as Qt asks for them.
//
// An interface stands for a window or an item in it and knows nothing but its handle and number: each question goes to
// what the toolkit tells of it (Toolkit/access/Accessible.h). So one that outlives its window or item is merely
// invalid.
#pragma once

#include "QtDesktop/AccessibleText.h"

#include <QAccessible>

namespace qtdesktop
{

class QtAccessible : public QAccessibleInterface, public QAccessibleActionInterface, public QAccessibleValueInterface
{
public:
    QtAccessible(HWND hWnd, LPARAM item) : m_hWnd(hWnd), m_item(item), m_text(hWnd) {}

    bool isValid() const override;
    QObject* object() const override;
    QWindow* window() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* pChild) const override;

    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text which, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    // What a user does comes in its order among posted messages and input.
    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1.0; }

private:
    bool IsWindowItself() const { return m_item == 0; }
    bool IsTextField() const;

    const HWND m_hWnd;
    const LPARAM m_item; // CHILDID_SELF for the window itself
    AccessibleText m_text;
};

void InstallAccessibles(); // for every window from now on
// NULL for a window or an item that is not there. Valid until Qt's loop runs again.
QAccessibleInterface* FindAccessible(HWND hWnd, LPARAM item);
QAccessibleInterface* FindFocusedAccessible(); // likewise; NULL when the focus is in none of the windows
// Lets go of those whose windows are gone and of the oldest of very many items. Not while Qt asks one.
void TrimAccessibles();

} // namespace qtdesktop

// The text of a field for screen readers: characters, words, caret and selection. Offsets count UTF-16 units.
#pragma once

#include "Toolkit/base/Types.h"

#include <QAccessible>

namespace qtdesktop
{

struct FieldText
{
    QString text;
    int cursor = 0, anchor = 0;
};
FieldText ReadField(HWND hWnd);

class AccessibleText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface
{
public:
    explicit AccessibleText(HWND hWnd) : m_hWnd(hWnd) {}

    void selection(int index, int* pStart, int* pEnd) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    void setSelection(int, int start, int end) override { addSelection(start, end); }
    int cursorPosition() const override { return ReadField(m_hWnd).cursor; }
    void setCursorPosition(int position) override { addSelection(position, position); }
    QString text(int start, int end) const override;
    int characterCount() const override { return static_cast<int>(ReadField(m_hWnd).text.size()); }
    QRect characterRect(int offset) const override; // screen
    int offsetAtPoint(const QPoint& screen) const override;
    void scrollToSubstring(int start, int end) override { addSelection(start, end); }
    QString attributes(int offset, int* pStart, int* pEnd) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

private:
    const HWND m_hWnd;
};

} // namespace qtdesktop

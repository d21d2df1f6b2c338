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
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override; // screen
    int offsetAtPoint(const QPoint& screen) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* pStart, int* pEnd) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

private:
    const HWND m_hWnd;
};

} // namespace qtdesktop

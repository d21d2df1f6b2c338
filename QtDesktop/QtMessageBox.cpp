#include "QtDesktop/QtMessageBox.h"

#include "Toolkit/menu/MessageBox.h"

#include <QMessageBox>
#include <QPointer>

namespace qtdesktop
{
namespace
{

constexpr UINT kButtonsMask = 0x000F;
constexpr UINT kIconMask = 0x00F0;

QMessageBox::StandardButtons Buttons(UINT nType)
{
    switch (nType & kButtonsMask) {
    case MB_OKCANCEL:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MB_YESNOCANCEL:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MB_YESNO:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon Icon(UINT nType)
{
    switch (nType & kIconMask) {
    case MB_ICONHAND:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONEXCLAMATION:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton ClosingButton(QMessageBox::StandardButtons buttons)
{
    for (const auto button : {QMessageBox::Cancel, QMessageBox::No}) {
        if (buttons.testFlag(button))
            return button;
    }
    return QMessageBox::Ok;
}

int ToIdentifier(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Cancel:
        return IDCANCEL;
    case QMessageBox::Yes:
        return IDYES;
    case QMessageBox::No:
        return IDNO;
    default:
        return IDOK;
    }
}

} // namespace

int AskMessageBox(QWidget* pOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType)
{
    const QMessageBox::StandardButtons buttons = Buttons(nType);
    const QMessageBox::StandardButton closing = ClosingButton(buttons);

    // Its owner deletes the box when it goes while the box is open.
    const QPointer<QMessageBox> pBox =
        new QMessageBox(Icon(nType), QString::fromUtf8(pszCaption), QString::fromUtf8(pszText), buttons, pOwner);
    pBox->setTextFormat(Qt::PlainText); // a file's name is no markup
    pBox->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard); // to be copied
    pBox->setEscapeButton(closing);
    if (nType & MB_DEFBUTTON2)
        pBox->setDefaultButton(buttons.testFlag(QMessageBox::No) ? QMessageBox::No : QMessageBox::Cancel);
    const int nAnswer = pBox->exec();
    if (!pBox)
        return ToIdentifier(closing);
    delete pBox;
    return ToIdentifier(static_cast<QMessageBox::StandardButton>(nAnswer));
}

} // namespace qtdesktop

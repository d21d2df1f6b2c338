#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/ClipboardFormat.h"
#include "Toolkit/exchange/DataSource.h"
#include "tests/desktop/DesktopTest.h"

#include <QClipboard>
#include <QMimeData>
#include <cstring>

namespace
{

class ClipboardTest : public DesktopTest
{
protected:
    static void Offer(COleDataSource& source, const char* pszFormat, std::string_view bytes)
    {
        const HGLOBAL hBytes = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(toolkit::GlobalLocker<char>(hBytes).Get(), bytes.data(), bytes.size());
        source.CacheGlobalData(RegisterClipboardFormat(pszFormat), hBytes);
    }

    static std::string OnClipboard()
    {
        std::string all;
        const QMimeData* const pMime = QGuiApplication::clipboard()->mimeData();
        for (const QString& kind : pMime->formats())
            all += kind.toStdString() + ": " + pMime->data(kind).toStdString() + "; ";
        return all;
    }
};

} // namespace

TEST_F(ClipboardTest, WhatEverybodyCanReadStaysWhenTheProgramEnds)
{
    auto source = std::make_unique<COleDataSource>();
    Offer(*source, "application/x-atoms", "/tmp/a-transfer-file");
    Offer(*source, "text/uri-list", "file:///a");
    Offer(*source, "Objects of our own", "1");
    source.release()->SetClipboard(); // the clipboard's now
    m_probe.reset();
    m_desktop.reset();
    EXPECT_EQ("text/uri-list: file:///a\r\n; ", OnClipboard());
    EXPECT_EQ(nullptr, COleDataSource::GetClipboardOwner());
}

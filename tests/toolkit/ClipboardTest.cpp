#include "Toolkit/desktop/WaitCursor.h"
#include "Toolkit/exchange/DataObject.h"
#include "Toolkit/exchange/DataSource.h"
#include "tests/support/AllocationFailures.h"
#include "tests/support/DesktopTest.h"

#include <cstring>

namespace
{

// Writes down who asks it what.
class Releaser final : public IUnknown
{
public:
    explicit Releaser(LedgerBook& book) : m_book(book) {}

    HRESULT QueryInterface(REFIID, void** ppv) override { return *ppv = nullptr, E_NOINTERFACE; }
    ULONG AddRef() override { return ++m_nReferences; }
    ULONG Release() override
    {
        m_book.Write("released");
        return --m_nReferences;
    }

private:
    LedgerBook& m_book;
    ULONG m_nReferences = 1;
};

HGLOBAL Block(const std::string& bytes)
{
    const HGLOBAL hMem = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(toolkit::GlobalLocker<char>(hMem).Get(), bytes.data(), bytes.size());
    return hMem;
}

std::string Bytes(HGLOBAL hMem)
{
    const toolkit::GlobalLocker<char> bytes(hMem);
    return bytes.Get() ? std::string(bytes.Get(), GlobalSize(hMem)) : "";
}

class ClipboardTest : public DesktopTest, public LedgerBook
{
protected:
    // A source of "path" under the atoms' format, whose releaser writes down its end and frees the block.
    COleDataSource* MakeSource()
    {
        auto pSource = std::make_unique<COleDataSource>();
        STGMEDIUM medium{};
        medium.tymed = TYMED_HGLOBAL;
        medium.hGlobal = m_block.emplace_back(Block("path"));
        medium.pUnkForRelease = &releaser;
        pSource->CacheData(m_atoms, &medium);
        EXPECT_EQ(TYMED_NULL, medium.tymed);
        return pSource.release();
    }

    // What a paste finds, taken and given back.
    static std::string Paste(CLIPFORMAT format)
    {
        COleDataObject object;
        STGMEDIUM medium{};
        if (!object.AttachClipboard() || !object.GetData(format, &medium))
            return "nothing";
        EXPECT_EQ(nullptr, medium.pUnkForRelease);
        const std::string bytes = Bytes(medium.hGlobal);
        ReleaseStgMedium(&medium);
        EXPECT_EQ(TYMED_NULL, medium.tymed);
        return bytes;
    }

    ~ClipboardTest() override
    {
        desktop.TakeClipboard({});
        for (const HGLOBAL hMem : m_block)
            GlobalFree(hMem);
    }

    const CLIPFORMAT m_atoms = RegisterClipboardFormat("application/x-atoms");
    Releaser releaser{*this};
    std::vector<HGLOBAL> m_block;
};

TEST_F(ClipboardTest, APasteGetsACopyAndTheReleaserGoesWithTheSourceOrWhatReplacesItsBlock)
{
    EXPECT_EQ("nothing", Paste(m_atoms));
    COleDataSource* pSource = MakeSource();
    pSource->SetClipboard();
    pSource->SetClipboard(); // again changes nothing
    EXPECT_EQ(pSource, COleDataSource::GetClipboardOwner());
    EXPECT_EQ("path", Paste(m_atoms));
    EXPECT_EQ("path", Paste(m_atoms));
    EXPECT_EQ("nothing", Paste(CF_TEXT));
    EXPECT_EQ(Ledger(), TakeLedger());

    MakeSource()->SetClipboard();
    EXPECT_EQ(Ledger({"released"}), TakeLedger());
    EXPECT_EQ("path", Paste(m_atoms));

    std::unique_ptr<COleDataSource>(MakeSource())->CacheGlobalData(m_atoms, Block("other"));
    EXPECT_EQ(Ledger({"released"}), TakeLedger());

    COleDataSource::FlushClipboard(); // leaves plain copies
    EXPECT_EQ(Ledger({"released"}), TakeLedger());
    EXPECT_EQ(nullptr, COleDataSource::GetClipboardOwner());
    EXPECT_EQ("path", Paste(m_atoms));
    EXPECT_EQ("path", desktop.ReadPublished("application/x-atoms"));
    COleDataSource::FlushClipboard(); // nothing is left to flush
    EXPECT_EQ("path", Paste(m_atoms));
}

TEST_F(ClipboardTest, FormatsAreNumbersForNamesAndADescriptionRestrictsTheMedia)
{
    EXPECT_EQ(m_atoms, RegisterClipboardFormat("APPLICATION/x-atoms"));
    EXPECT_EQ(0, RegisterClipboardFormat(""));
    EXPECT_EQ(Ledger({"application/x-atoms"}), toolkit::KindsOfFormat(m_atoms));
    EXPECT_EQ(Ledger({"application/x-toolkit-format;name=41746f6d73"}),
              toolkit::KindsOfFormat(RegisterClipboardFormat("Atoms")));
    EXPECT_EQ(Ledger(), toolkit::KindsOfFormat(0xFFFF));

    MakeSource()->SetClipboard();
    COleDataObject object;
    object.AttachClipboard();
    FORMATETC format{m_atoms, nullptr, DVASPECT_CONTENT, -1, TYMED_FILE};
    EXPECT_EQ(nullptr, object.GetGlobalData(m_atoms, &format));
    format.tymed = TYMED_FILE | TYMED_HGLOBAL;
    EXPECT_TRUE(object.IsDataAvailable(0, &format)); // its own format holds
    format.dwAspect = 2;
    EXPECT_FALSE(object.IsDataAvailable(0, &format));
}

TEST_F(ClipboardTest, AnotherProgramReadsWhatIsPublishedAndTakesTheClipboard)
{
    COleDataSource* pSource = MakeSource();
    pSource->CacheGlobalData(CF_TEXT, Block(std::string("Walk\0rest", 9)));
    pSource->SetClipboard();
    EXPECT_EQ("application/x-atoms text/plain;charset=utf-8 text/plain", desktop.PublishedKinds());
    EXPECT_EQ("Walk", desktop.ReadPublished("text/plain"));
    EXPECT_EQ(std::nullopt, desktop.ReadPublished("image/png"));

    COleDataObject held;
    EXPECT_TRUE(held.AttachClipboard());
    desktop.TakeClipboard({{"application/x-atoms", "theirs"}});
    EXPECT_EQ(Ledger({"released"}), TakeLedger());
    EXPECT_EQ(nullptr, COleDataSource::GetClipboardOwner());
    EXPECT_FALSE(held.IsDataAvailable(m_atoms)); // the data is gone, the object is not
    EXPECT_EQ("theirs", Paste(m_atoms));
    EXPECT_EQ("nothing", Paste(CF_TEXT));

    desktop.TakeClipboard({{"text/plain", "Run"}});
    EXPECT_EQ(std::string("Run\0", 4), Paste(CF_TEXT));
}

TEST_F(ClipboardTest, WithoutMemoryTheFormerDataStaysAndARefusalOfTheDesktopIsAnError)
{
    COleDataSource* const pFormer = MakeSource();
    pFormer->SetClipboard();
    COleDataSource* const pNext = MakeSource();
    {
        const FailAllocation failure(1);
        EXPECT_THROW(pNext->SetClipboard(), CMemoryException);
    }
    EXPECT_EQ(Ledger({"released"}), TakeLedger()); // what did not come about
    EXPECT_EQ(pFormer, COleDataSource::GetClipboardOwner());
    EXPECT_EQ("path", desktop.ReadPublished("application/x-atoms"));

    COleDataSource source;
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = Block("path");
    const auto cache = [&] {
        try {
            source.CacheData(m_atoms, &medium);
        } catch (const std::bad_alloc&) {
            EXPECT_EQ("path", Bytes(medium.hGlobal)); // still the caller's
        }
    };
    EXPECT_LT(0, FailEveryAllocation(cache));
    EXPECT_EQ(TYMED_NULL, medium.tymed);
    desktop.RefuseClipboard(true);
    EXPECT_THROW(MakeSource()->SetClipboard(), COleException);
    EXPECT_EQ(Ledger({"released", "released"}), TakeLedger());
    EXPECT_EQ("nothing", Paste(m_atoms));
}

TEST_F(ClipboardTest, AFilesNameIsForThisProgramAlone)
{
    auto pSource = std::make_unique<COleDataSource>();
    STGMEDIUM medium{};
    medium.tymed = TYMED_FILE;
    medium.lpszFileName = static_cast<LPOLESTR>(CoTaskMemAlloc(sizeof L"/tmp/a"));
    std::memcpy(medium.lpszFileName, L"/tmp/a", sizeof L"/tmp/a");
    pSource->CacheData(m_atoms, &medium);
    pSource.release()->SetClipboard();

    COleDataObject object;
    object.AttachClipboard();
    ASSERT_TRUE(object.GetData(m_atoms, &medium));
    EXPECT_EQ(L"/tmp/a", std::wstring(medium.lpszFileName));
    ReleaseStgMedium(&medium);
    EXPECT_EQ(nullptr, object.GetGlobalData(m_atoms));
    EXPECT_EQ("", desktop.PublishedKinds());
    COleDataSource::FlushClipboard();
    EXPECT_EQ("nothing", Paste(m_atoms));
}

TEST_F(ClipboardTest, TheWaitCursorShowsUntilTheLastOneGoes)
{
    {
        const CWaitCursor outer;
        CWaitCursor().Restore();
        EXPECT_EQ(toolkit::Cursor::Wait, desktop.CurrentCursor());
    }
    EXPECT_EQ(toolkit::Cursor::Arrow, desktop.CurrentCursor());
}

} // namespace

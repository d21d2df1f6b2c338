// COleDataSource: data that this program offers, on the clipboard or in a drag.
#pragma once

#include "Toolkit/base/Exception.h"
#include "Toolkit/desktop/DropEffect.h"
#include "Toolkit/exchange/StgMedium.h"

#include <memory>

namespace toolkit
{
class DataCache;
}

using SCODE = HRESULT;
inline constexpr SCODE CLIPBRD_E_CANT_SET = static_cast<SCODE>(0x800401D2);

// The desktop has refused data that was to be exchanged.
class TOOLKIT_API COleException : public CException
{
public:
    explicit COleException(SCODE sc) : m_sc(sc) {}

    LPCSTR GetErrorMessage() const noexcept override { return "The clipboard cannot be had."; }

    const SCODE m_sc;
};

// Keeps what was cached in it until it goes; whoever takes data gets a copy. Made with new when it is meant for the
// clipboard, which then deletes it; else whoever made it deletes it, even while it is being dragged.
class TOOLKIT_API COleDataSource
{
public:
    COleDataSource();
    virtual ~COleDataSource(); // releases the cached media
    COleDataSource(const COleDataSource&) = delete;
    COleDataSource& operator=(const COleDataSource&) = delete;

    // The data source whose data is on the clipboard; NULL when there is none of this program's.
    static COleDataSource* GetClipboardOwner();

    // Takes the medium over, its releaser included, in place of the format's former one. The data's kind may be given
    // by a format description, whose format holds when cfFormat is 0. Other programs see what is in global memory.
    // Raises CMemoryException, and the medium stays the caller's, when memory runs out.
    void CacheData(CLIPFORMAT cfFormat, STGMEDIUM* pMedium, FORMATETC* pFormat = nullptr);
    void CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, FORMATETC* pFormat = nullptr); // takes the block over

    // Gives the data source to the clipboard in place of what is there. The clipboard deletes it when other data, of
    // this program or another one, comes in its place, or at the desktop's end. Raises COleException when the desktop
    // does not give the clipboard, and CMemoryException; the data source is deleted then, too.
    void SetClipboard();
    // Leaves plain copies of this program's data on the clipboard and deletes the data source, with the media it
    // kept and their releasers. Nothing happens when the clipboard has no data source of this program's.
    static void FlushClipboard();

    // Lets the user drag the data, from the mouse's present place and with the button held that is down, until it is
    // dropped or cancelled; what has become of it: one of the allowed effects, or none. A move is answered only when
    // whoever took the data has confirmed it; doubt means copy. None at once when no button is down or another drag
    // is under way. Messages run meanwhile: the views, the dragged objects and this data source (which ends the drag)
    // may be gone afterwards.
    DROPEFFECT DoDragDrop(DWORD dwEffects = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK);

private:
    const std::shared_ptr<toolkit::DataCache> m_cache;
};

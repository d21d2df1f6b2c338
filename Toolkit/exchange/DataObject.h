// COleDataObject: data that is there to be taken, from the clipboard or from a drag, of this program or another.
#pragma once

#include "Toolkit/exchange/StgMedium.h"

#include <memory>

namespace toolkit
{
class DataProvider;
}

// The data may go at any time while the object is held: it then offers nothing more.
class TOOLKIT_API COleDataObject
{
public:
    COleDataObject() = default;
    explicit COleDataObject(std::shared_ptr<toolkit::DataProvider> provider) : m_provider(std::move(provider)) {}

    // The clipboard's data as of now, in place of what was attached. FALSE when the clipboard is empty.
    BOOL AttachClipboard();
    void Release() { m_provider.reset(); } // lets go of it

    // A format description, where one is given, restricts the media; its format holds when cfFormat is 0. Content is
    // the only aspect there is.
    BOOL IsDataAvailable(CLIPFORMAT cfFormat, FORMATETC* pFormat = nullptr);
    // A copy, without a releaser, that the caller gives back with ReleaseStgMedium. FALSE, and *pMedium is TYMED_NULL,
    // when it cannot be had. Data of another program may take a while.
    BOOL GetData(CLIPFORMAT cfFormat, STGMEDIUM* pMedium, FORMATETC* pFormat = nullptr);
    HGLOBAL GetGlobalData(CLIPFORMAT cfFormat, FORMATETC* pFormat = nullptr); // a copy that the caller frees; or NULL

private:
    std::shared_ptr<toolkit::DataProvider> m_provider;
};

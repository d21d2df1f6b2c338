// Texts, icons and bitmaps by number, looked up along a chain of modules.
//
// The host fills a module of its own and joins it to the chain; a library looks its resources up without
// knowing which module has them. The module joined last is asked first.
#pragma once

#include "Toolkit/base/String.h"
#include "Toolkit/graphics/Gdi.h"

#include <map>

class TOOLKIT_API CResourceModule
{
public:
    CResourceModule() = default;
    ~CResourceModule(); // leaves the chain
    CResourceModule(const CResourceModule&) = delete;
    CResourceModule& operator=(const CResourceModule&) = delete;

    // A number that is there already gets the new resource.
    void AddString(UINT nID, LPCSTR pszText) { m_strings[nID] = pszText; }
    void AddBitmap(UINT nID, toolkit::Surface picture) { m_bitmaps[nID] = std::move(picture); }
    void AddIcon(UINT nID, toolkit::Surface picture) { m_icons[nID] = std::move(picture); }

    void Join(); // to the chain's front; does nothing when it is in the chain
    void Leave();

    const CString* FindString(UINT nID) const;
    const toolkit::Surface* FindBitmap(UINT nID) const;
    const toolkit::Surface* FindIcon(UINT nID) const;

private:
    std::map<UINT, CString> m_strings;
    std::map<UINT, toolkit::Surface> m_bitmaps;
    std::map<UINT, toolkit::Surface> m_icons;
};

namespace toolkit
{
// The first bitmap resource of that number along the chain; NULL without one. The module keeps it.
TOOLKIT_API const Surface* FindBitmapResource(UINT nID);
} // namespace toolkit

// A new bitmap or icon made from the first resource of that number along the chain; NULL without one.
TOOLKIT_API HBITMAP LoadBitmap(UINT nID);
TOOLKIT_API HICON LoadIcon(UINT nID);

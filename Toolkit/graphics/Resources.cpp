#include "Toolkit/graphics/Resources.h"

#include <algorithm>

namespace
{

// The module asked first comes last. Never destroyed: modules may leave it late.
std::vector<CResourceModule*>& Chain()
{
    static auto& chain = *new std::vector<CResourceModule*>;
    return chain;
}

// What the first module that has it gives; NULL when none does.
template <class Resource>
const Resource* FindInChain(const Resource* (CResourceModule::*find)(UINT) const, UINT nID)
{
    const auto& chain = Chain();
    for (auto module = chain.rbegin(); module != chain.rend(); ++module)
        if (const Resource* pFound = ((*module)->*find)(nID))
            return pFound;
    return nullptr;
}

template <class Resource>
const Resource* FindIn(const std::map<UINT, Resource>& resources, UINT nID)
{
    const auto found = resources.find(nID);
    return found == resources.end() ? nullptr : &found->second;
}

} // namespace

CResourceModule::~CResourceModule()
{
    Leave();
}

void CResourceModule::Join()
{
    if (std::find(Chain().begin(), Chain().end(), this) == Chain().end())
        Chain().push_back(this);
}

void CResourceModule::Leave()
{
    std::erase(Chain(), this);
}

const CString* CResourceModule::FindString(UINT nID) const
{
    return FindIn(m_strings, nID);
}

const toolkit::Surface* CResourceModule::FindBitmap(UINT nID) const
{
    return FindIn(m_bitmaps, nID);
}

const toolkit::Surface* CResourceModule::FindIcon(UINT nID) const
{
    return FindIn(m_icons, nID);
}

BOOL CString::LoadString(UINT nID)
{
    const CString* pFound = FindInChain(&CResourceModule::FindString, nID);
    if (!pFound)
        return FALSE;
    *this = *pFound;
    return TRUE;
}

const toolkit::Surface* toolkit::FindBitmapResource(UINT nID)
{
    return FindInChain(&CResourceModule::FindBitmap, nID);
}

HBITMAP LoadBitmap(UINT nID)
{
    const toolkit::Surface* pFound = toolkit::FindBitmapResource(nID);
    return pFound ? CreateBitmapFromSurface(*pFound) : nullptr;
}

HICON LoadIcon(UINT nID)
{
    const toolkit::Surface* pFound = FindInChain(&CResourceModule::FindIcon, nID);
    return pFound ? CreateIconFromSurface(*pFound) : nullptr;
}

// What the atoms of every made-up host do alike: those of tests, of the walk and of the benchmarks.
#pragma once

#include "tests/kernel/FakeCounted.h"
#include "tests/support/HostEditor.h"

#include <algorithm>
#include <cstring>

// The name protocol. FALSE for the length, which no one looks at.
inline BOOL CopyText(const std::string& text, char* pBuffer, DWORD* pLength)
{
    if (pBuffer)
        std::memcpy(pBuffer, text.c_str(), std::min<std::size_t>(text.size() + 1, *pLength));
    else
        *pLength = static_cast<DWORD>(text.size()) + 1;
    return pBuffer != nullptr;
}

template <class Self>
class HostAtom : public HostTraits,
                 public FakeCounted<Self>,
                 public IAtomContainer,
                 public IPhase,
                 public IDispAtom,
                 public IAtomIcon,
                 public IAtomThumbnail,
                 public IImageLink,
                 public ICharacterLibrary
{
public:
    using HostTraits::HostTraits;

    Self* parent = nullptr;
    std::vector<CStubRef<Self>> members;

    static Self* As(IAtom* pAtom) { return dynamic_cast<Self*>(pAtom); }
    Self* Add(Self* pNew) // takes the one reference of a new atom
    {
        pNew->parent = static_cast<Self*>(this);
        members.push_back(CStubRef<Self>::Adopt(pNew));
        return pNew;
    }
    CStubRef<Self> TakeOut(Self* pMember) // empty when it is none
    {
        const auto found = std::ranges::find(members, pMember, &CStubRef<Self>::Get);
        if (found == members.end())
            return nullptr;
        CStubRef<Self> pRemoved = std::move(*found);
        members.erase(found);
        return pRemoved;
    }
    Self* Named(const std::string& strName) const // the first member of that name
    {
        const auto found = std::ranges::find(members, strName, [](const auto& p) { return p->name; });
        return found == members.end() ? nullptr : found->Get();
    }

    BOOL GetName(char* pBuffer, DWORD* pLength) override { return Called().CopyText(name, pBuffer, pLength); }
    BOOL GetContainer(void** ppOut, DWORD id) override { return Called().Give(parent, ppOut, id); }
    BOOL IsModified() override { return Called().isModified; }
    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override
    {
        return Called().CopyText(*displayName, pBuffer, pLength);
    }
    UINT GetFrameCount() override { return static_cast<UINT>(nFrames); }
    UINT GetCount() override { return static_cast<UINT>(Called().members.size()); }
    void GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD id) override
    {
        Called();
        for (UINT i = 0; i < nCount; ++i)
            Give(nFirst + i < members.size() ? members[nFirst + i].Get() : nullptr, &ppOut[i], id);
    }
    BOOL FindAtomByID(DWORD dwID, void** ppOut, DWORD id) override
    {
        Called();
        const auto found = std::ranges::find(members, dwID, [](const auto& p) { return p->GetID(); });
        return Give(found == members.end() ? nullptr : found->Get(), ppOut, id);
    }
    BOOL FindAtom(const char* pszName, void** ppOut, DWORD id) override
    {
        return Called().Give(Named(pszName), ppOut, id);
    }
    int GetPosition(IImageLink* pLink) override
    {
        const int nPosition = Called().PositionOf(static_cast<Self*>(pLink));
        return isBackward ? -nPosition : nPosition;
    }

protected:
    virtual void OnCalled(Self*) {} // before it answers

    HostAtom& Called()
    {
        OnCalled(static_cast<Self*>(this));
        return *this;
    }
    static BOOL CopyText(const std::string& text, char* pBuffer, DWORD* pLength)
    {
        return ::CopyText(text, pBuffer, pLength);
    }
    static int PositionOf(const Self* pLink) { return pLink->position; }
    static BOOL Give(Self* pAtom, void** ppOut, DWORD id)
    {
        if (ppOut)
            *ppOut = nullptr;
        if (ppOut && pAtom)
            pAtom->GetInterface(id, ppOut);
        return pAtom && (!ppOut || *ppOut);
    }
    void* Find(DWORD id) override
    {
        if (id == IID_IAtom)
            return static_cast<IAtom*>(this);
        if (id == IID_IAtomContainer && isContainer)
            return static_cast<IAtomContainer*>(this);
        if (id == IID_IPhase && isPhase)
            return static_cast<IPhase*>(this);
        if (id == IID_IDispAtom && displayName)
            return static_cast<IDispAtom*>(this);
        if (id == IID_IAtomIcon && hasIcon)
            return static_cast<IAtomIcon*>(this);
        if (id == IID_IAtomThumbnail && nFrames > 0)
            return static_cast<IAtomThumbnail*>(this);
        if (id == IID_IImageLink && isLink)
            return static_cast<IImageLink*>(this);
        if (id == IID_ICharacterLibrary && isLibrary)
            return static_cast<ICharacterLibrary*>(this);
        return id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
    }
};

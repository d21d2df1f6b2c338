// The atoms of the walk: they know how often they are held, and each call of one may be the host's moment to be rude.
#pragma once

#include "tests/support/HostAtom.h"

class Host;

enum class Kind
{
    Plain,
    Container,
    Phase // its members are image links
};

class Atom final : public HostAtom<Atom>
{
public:
    Atom(Host& host, std::string strName, Kind kind = Kind::Plain);
    ~Atom() override;

    Host& host;
    const int serial; // tells atoms of one name apart in messages

    Atom* Add(Atom* pNew);      // takes its one reference
    bool Remove(Atom* pMember); // the host keeps it alive for as long as somebody else holds it
    bool Holds(const Atom* pMember) const { return pMember->parent == this; }
    std::string Label() const { return displayName.value_or(name); }
    std::string TreeLabel() const { return Label() + (isModified ? " *" : ""); }

    DWORD GetID() override { return static_cast<DWORD>(serial); }
    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;
    BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) override;
    BOOL AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD id) override;
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id) override;
    BOOL RemoveAtom(IAtom* pAtom) override;
    DWORD GetPermissions(IAtom* pAtom) override;
    BOOL ValidateName(CString& strName, DWORD dwReserved) override;

protected:
    void OnCalled(Atom* pAbout) override; // tells the host, which may be rude
};

using AtomRef = CStubRef<Atom>;
std::string Print(const Atom* pAtom); // "b#3", or "-" for none

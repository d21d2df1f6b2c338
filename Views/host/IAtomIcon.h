#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

struct ICONREQUEST
{
    int cx, cy;  // pixels
    HICON hIcon; // filled in
};
static_assert(sizeof(void*) != 4 || sizeof(ICONREQUEST) == 12);

// An atom's icon.
class VIEWS_API IAtomIcon : public virtual CStubBaseInterface
{
public:
    virtual void IconReserved1() {}
    // Fills in an icon of the requested size, which the caller destroys.
    virtual BOOL GetIcon(ICONREQUEST* pRequest) = 0;
    // Puts the picture, at the list's size, over image nReplace or at the end (-1). Its index, -1 on failure.
    virtual int AddToImageList(HIMAGELIST hImageList, int nReplace) = 0;

protected:
    ~IAtomIcon() = default;
};

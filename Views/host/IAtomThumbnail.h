#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

class CRect;

// An atom's picture, animated when it has more than one frame.
class VIEWS_API IAtomThumbnail : public virtual CStubBaseInterface
{
public:
    virtual UINT GetFrameCount() = 0;
    // Draws a frame into the rectangle; FALSE when it could not. The library passes 0 and 2 before the frame.
    virtual BOOL Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame) = 0;

protected:
    ~IAtomThumbnail() = default;
};

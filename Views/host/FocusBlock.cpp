#include "Views/host/FocusBlock.h"

int FocusBlock::FocusBlockCounter = 0;

FocusBlock::FocusBlock()
{
    ++FocusBlockCounter;
}

FocusBlock::~FocusBlock()
{
    --FocusBlockCounter;
}

FocusBlock& FocusBlock::operator=(const FocusBlock&)
{
    return *this;
}

BOOL FocusBlock::IsInFocusBlock()
{
    return FocusBlockCounter > 1;
}

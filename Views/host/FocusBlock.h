// FocusBlock: says that focus handling is under way, for as long as it lives.
#pragma once

#include "Views/host/Api.h"

// Every live block counts, in the whole process; hosts may open blocks, too. The views' focus handlers open one of
// their own and then ask IsInFocusBlock: with another block open they leave the editor alone. User-interface thread
// only.
class VIEWS_API FocusBlock
{
public:
    FocusBlock();
    ~FocusBlock();
    FocusBlock(const FocusBlock&) = delete;   // a block is a scope, of which there is no copy
    FocusBlock& operator=(const FocusBlock&); // changes nothing: both scopes stay open

    static BOOL IsInFocusBlock(); // TRUE with another one than the asker's own

private:
    static int FocusBlockCounter;
};

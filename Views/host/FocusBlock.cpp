#include "Views/host/FocusBlock.h"

int FocusBlock::FocusBlockCounter = 0;

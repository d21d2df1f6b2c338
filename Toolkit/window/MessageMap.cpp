#include "Toolkit/window/MessageMap.h"

const toolkit::MessageEntry* toolkit::SearchMessageEntry(const MessageMap* pMap, UINT message, UINT code, UINT id)
{
    for (; pMap; pMap = pMap->base ? pMap->base() : nullptr) {
        for (const MessageEntry* p = pMap->entries; p->message != 0; ++p)
            if (p->message == message && p->code == code && id >= p->id && id <= p->lastID)
                return p;
    }
    return nullptr;
}

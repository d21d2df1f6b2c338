// Inside the library.
#pragma once

#include "Toolkit/base/Exception.h"

#include <deque>

namespace views
{

// The images of rows that have left a view's cache, which are used again for rows that enter it.
class FreeImages
{
public:
    int Take() // the longest unused; -1: none is free
    {
        if (m_images.empty())
            return -1;
        const int nImage = m_images.front();
        m_images.pop_front();
        return nImage;
    }
    void Add(int nImage) // without memory for it the image is not used again
    {
        try {
            m_images.push_back(nImage);
        } catch (const CMemoryException&) {
        }
    }
    void Clear() { m_images.clear(); }

private:
    std::deque<int> m_images;
};

} // namespace views

// A list view of one's own: how far each task has come, as a pie. What rows there are, names, selection, keys and the
// mouse are the library's; a view adds its pictures, for the rows that are about to be seen and no others.
#include "HostKit/HostKit.h"
#include "HostKit/pictures/Drawing.h"
#include "Views/list/list.h"
#include "examples/Screen.h"

#include <cmath>
#include <cstdio>

namespace
{

constexpr int kExtent = 64; // of a picture

class Task : public hostkit::CAtom
{
public:
    Task(std::string name, int nDone) : CAtom(std::move(name)), m_nDone(nDone) {}

    int Done() const { return m_nDone; } // percent
    void SetDone(int nDone) { m_nDone = nDone; }

private:
    int m_nDone;
};

toolkit::Surface DrawPie(int nDone)
{
    const double turn = nDone * 2 * std::acos(-1.0) / 100;
    const hostkit::Shape slice = [=](hostkit::Vec at) { // negative inside: here as far as the clock's hand has come
        const double angle = std::atan2(at.x - 32, 32 - at.y);
        return (angle < 0 ? angle + 2 * std::acos(-1.0) : angle) <= turn ? -1.0 : 1.0;
    };
    hostkit::Drawing drawing(kExtent, 64);
    drawing.Fill(hostkit::Circle({32, 32}, 30), RGB(222, 228, 236));
    drawing.Fill(hostkit::Circle({32, 32}, 30) & slice, RGB(64, 140, 96));
    return drawing.Take();
}

class CTaskList : public CObjectsList
{
public:
    static constexpr UINT kPaneKind = 1; // beside the tree

    CTaskList() : CObjectsList(kPaneKind, views::IDR_ICON_PANE, FALSE) {}
    ~CTaskList() override { DestroyWindow(); } // while the functions below are still there

protected:
    // A row is about to be drawn. Its picture stays until the next function takes it back.
    void OnCacheItem(int, IAtom* pAtom, IAtomContainer*, CACHEDATA* pData) override
    {
        const auto* const pTask = dynamic_cast<Task*>(pAtom);
        const HICON hPie = CreateIconFromSurface(DrawPie(pTask ? pTask->Done() : 0));
        pData->nImage = ImageList_ReplaceIcon(m_images.GetSafeHandle(), TakeFree(), hPie);
        DestroyIcon(hPie);
    }
    void OnUncacheItem(int, IAtom*, IAtomContainer*, CACHEDATA* pData) override { m_free.push_back(pData->nImage); }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        if (CObjectsList::OnCreate(lpCreateStruct) == -1 || !m_images.Create(kExtent, kExtent, ILC_COLOR32, 0, 16))
            return -1;
        SetImageList(&m_images, LVSIL_NORMAL);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    int TakeFree()
    {
        if (m_free.empty())
            return -1; // a new one
        const int nImage = m_free.back();
        m_free.pop_back();
        return nImage;
    }

    CImageList m_images;
    std::vector<int> m_free;
};

BEGIN_MESSAGE_MAP(CTaskList, CObjectsList)
    ON_WM_CREATE()
END_MESSAGE_MAP()

} // namespace

int main(int argc, char* argv[])
{
    examples::Screen screen(argc, argv);
    hostkit::Host host("Tasks");
    const auto pTasks = hostkit::Make<hostkit::CContainer>("Tasks");
    Task* const pPaint = pTasks->Add(hostkit::Make<Task>("Paint the fence", 25));
    pTasks->Add(hostkit::Make<Task>("Read", 75));
    pTasks->Add(hostkit::Make<Task>("Sleep", 100));

    hostkit::CFrame frame(host.GetEditor());
    CTaskList list;
    if (!frame.Create("Tasks", CSize(420, 200)) || !list.Create(frame.RightSide()))
        return 1;
    // A command of the program's own: a change of an object is told to everyone, and the view fetches its picture anew.
    frame.AddCommand({"Go &on with the fence", true, {'V', hostkit::CommandKey::With::Nothing}, {}, [&] {
                          pPaint->SetDone(std::min(100, pPaint->Done() + 25));
                          host.GetEditor().Tell(&IAEStateHandler::OnChangeAtom, pPaint);
                      }});
    frame.Open(pTasks.Get());
    return screen.Run(frame);
}

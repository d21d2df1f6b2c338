#include "bench/QtPeer.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QImage>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <map>

namespace
{

using namespace bench;

char Fold(char c)
{
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
}

class ListModel : public QAbstractListModel
{
public:
    explicit ListModel(Objects rows) : m_rows(std::move(rows)) {}

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const Sample& object = At(index);
        if (role == Qt::DisplayRole)
            return NameOf(object);
        return role == Qt::DecorationRole ? QVariant(IconOf(object, 48)) : QVariant();
    }
    const Sample& At(const QModelIndex& index) const { return *m_rows[static_cast<std::size_t>(index.row())]; }
    void Append(const Sample& object)
    {
        beginInsertRows({}, static_cast<int>(m_rows.size()), static_cast<int>(m_rows.size()));
        m_rows.push_back(&object);
        endInsertRows();
    }

private:
    Objects m_rows;
};

// Composes a picture when it is first asked for.
class ThumbModel : public ListModel
{
public:
    explicit ThumbModel(Objects rows) : ListModel(std::move(rows)) {}

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DecorationRole)
            return {};
        QIcon& picture = m_pictures[index.row()];
        if (picture.isNull())
            picture = Compose(At(index));
        return picture;
    }

private:
    static QIcon Compose(const Sample& object)
    {
        QPixmap picture(kThumbExtent, kThumbExtent);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(24, 24, 80, 80), IconOf(object, 48).pixmap(48, 48));
        painter.drawText(QRect(0, 104, kThumbExtent, 20), Qt::AlignHCenter, NameOf(object));
        painter.drawRect(0, 0, kThumbExtent - 1, kThumbExtent - 1);
        painter.end();
        return QIcon(picture);
    }

    mutable std::map<int, QIcon> m_pictures;
};

// Gives every cell its size unasked, the picture above the label.
class CellDelegate : public QStyledItemDelegate
{
public:
    CellDelegate(QSize cell, QObject* parent) : QStyledItemDelegate(parent), m_cell(cell) {}
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return m_cell; }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationPosition = QStyleOptionViewItem::Top;
        option->decorationAlignment = Qt::AlignCenter;
        option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
    }

private:
    const QSize m_cell;
};

class ListView : public QListView
{
public:
    ListView(QSize cell, int icon)
    {
        setFlow(LeftToRight);
        setWrapping(true);
        setLayoutMode(SinglePass);
        setUniformItemSizes(true);
        setGridSize(cell);
        setIconSize({icon, icon});
        setItemDelegate(new CellDelegate(cell, this));
        setSelectionMode(ExtendedSelection);
        ShowView(*this);
    }
};

struct IconList : ListView
{
    IconList() : ListView(QSize(kCellWidth, kCellHeight), 48) {}
};

Objects Sorted(const std::vector<Sample>& samples)
{
    Objects objects = PointersTo(samples);
    SortByName(objects);
    return objects;
}

struct ShownList
{
    explicit ShownList(const std::vector<Sample>& samples) : model(Sorted(samples))
    {
        view.setModel(&model);
        PaintFrame(view);
    }

    IconList view;
    ListModel model;
};

void OpenList(Stopwatch& watch)
{
    const auto samples = MakeMembers(watch.Count());
    while (watch.Next()) {
        IconList view;
        watch.Start();
        ListModel model(Sorted(samples));
        watch.Lap("1 sort");
        view.setModel(&model);
        PaintFrame(view);
        watch.Lap("2 view");
        watch.Stop();
    }
}

void ScrollList(Stopwatch& watch)
{
    constexpr int kFrames = 200;
    const auto samples = MakeMembers(watch.Count());
    ShownList shown(samples);
    QScrollBar& bar = *shown.view.verticalScrollBar();
    while (watch.Next()) {
        watch.Start();
        for (int i = 0; i < kFrames; ++i) {
            bar.setValue(static_cast<int>(std::int64_t{bar.maximum()} * i / (kFrames - 1)));
            PaintFrame(shown.view);
        }
        watch.Stop(kFrames);
    }
}

void SelectAll(Stopwatch& watch)
{
    const auto samples = MakeMembers(watch.Count());
    ShownList shown(samples);
    while (watch.Next()) {
        watch.Start();
        shown.view.selectAll();
        PaintFrame(shown.view);
        watch.Lap("1 select");
        shown.view.clearSelection();
        PaintFrame(shown.view);
        watch.Lap("2 deselect");
        watch.Stop();
    }
}

void Append(Stopwatch& watch)
{
    const auto samples = MakeMembers(watch.Count()), more = MakeSamples(1000);
    while (watch.Next()) {
        ShownList shown(samples);
        ListModel& model = shown.model;
        watch.Start();
        shown.view.setUpdatesEnabled(false);
        for (const Sample& sample : more) {
            model.Append(sample);
            shown.view.selectionModel()->select(model.index(model.rowCount({}) - 1),
                                                QItemSelectionModel::ClearAndSelect);
        }
        watch.Lap("appends");
        shown.view.setUpdatesEnabled(true);
        PaintFrame(shown.view);
        watch.Lap("final frame");
        watch.Stop(static_cast<double>(more.size()));
    }
}

void ShowThumbs(Stopwatch& watch)
{
    const auto samples = MakeMembers(watch.Count());
    while (watch.Next()) {
        ListView view(QSize(kThumbCell, kThumbCell), kThumbExtent);
        watch.Start();
        ThumbModel model(Sorted(samples));
        view.setModel(&model);
        PaintFrame(view);
        QScrollBar& bar = *view.verticalScrollBar();
        while (bar.value() < bar.maximum()) {
            bar.setValue(bar.value() + 5 * kThumbCell);
            PaintFrame(view);
        }
        watch.Stop(watch.Count());
    }
}

constexpr Workload kWorkloads[] = {
    {"list_open", &OpenList, "QListView, sorted by keys"},
    {"list_scroll", &ScrollList, "QListView, per frame of 200"},
    {"list_selectall", &SelectAll, "QListView"},
    {"list_append", &Append, "QListView, updates off, per append"},
    {"tree_open", &OpenQtTree, "QTreeView over a model, sorted by keys"},
    {"tree_open_items", &OpenQtTreeItems, "QTreeWidget, sorted by keys"},
    {"tree_flat_insert", &InsertIntoQtTree, "QTreeView over a model, places found by halving, total"},
    {"thumbs", &ShowThumbs, "QListView, per thumbnail"},
    {"floor_sort", &SortKeysAlone, "keys of 16 bytes, made and sorted"},
    {"floor_frame", &PaintPlainFrames, "filled and blended by plain loops, per frame of 200"},
};

} // namespace

bench::Objects bench::PointersTo(const std::vector<Sample>& samples)
{
    Objects objects;
    objects.reserve(samples.size());
    for (const Sample& sample : samples)
        objects.push_back(&sample);
    return objects;
}

bool bench::ComesBefore(const Sample* a, const Sample* b)
{
    return std::ranges::lexicographical_compare(a->Name(), b->Name(), {}, Fold, Fold);
}

void bench::SortByName(Objects& objects)
{
    using Key = std::pair<std::array<char, 16>, const Sample*>;
    std::vector<Key> keys(objects.size());
    std::ranges::transform(objects, keys.begin(), [](const Sample* pObject) {
        Key key{{}, pObject};
        std::ranges::transform(pObject->Name(), key.first.begin(), Fold);
        return key;
    });
    const auto number = [](const Key& key, int half) {
        std::uint64_t bytes;
        std::memcpy(&bytes, key.first.data() + 8 * half, sizeof bytes);
        return __builtin_bswap64(bytes);
    };
    std::ranges::sort(keys, [&](const Key& a, const Key& b) {
        const std::uint64_t x = number(a, 0), y = number(b, 0);
        return x != y ? x < y : number(a, 1) < number(b, 1);
    });
    std::ranges::transform(keys, objects.begin(), &Key::second);
}

const QIcon& bench::IconOf(const Sample& sample, int extent)
{
    static std::map<std::pair<int, int>, QIcon> s_icons;
    QIcon& icon = s_icons[{extent, sample.icon}];
    if (icon.isNull()) {
        const auto pixels = MakeIcon(sample.icon, extent);
        const QImage image(reinterpret_cast<const uchar*>(pixels.data()), extent, extent,
                           QImage::Format_ARGB32_Premultiplied);
        icon = QIcon(QPixmap::fromImage(image.copy()));
    }
    return icon;
}

QString bench::NameOf(const Sample& sample)
{
    return QString::fromLatin1(sample.name, sample.length);
}

void bench::ShowView(QAbstractItemView& view)
{
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // else the first frame is laid out twice
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.resize(kWindowWidth, kWindowHeight);
    view.show();
    QApplication::processEvents();
}

void bench::PaintFrame(QWidget& view)
{
    static QImage s_frame(kWindowWidth, kWindowHeight, QImage::Format_RGB32);
    view.render(&s_frame);
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setFont(QFont(kFontName, kFontPoints));
    const std::string name = argc == 3 ? argv[1] : "";
    const unsigned count = argc == 3 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : 0;
    return RunWorkload(kWorkloads, "qt", name, count);
}

#include "bench/QtPeer.h"

#include <QAbstractItemModel>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>

namespace
{

using namespace bench;

// A root, containers below it, members below those.
struct Node
{
    const Sample* self = nullptr;
    std::vector<Node> containers;
    Objects members;
};

Node MakeTree(const std::vector<Sample>& samples)
{
    const std::size_t nEach = (samples.size() - kContainers - 1) / kContainers;
    Node root{&samples[0], {}, {}};
    for (std::size_t i = 0; i < kContainers; ++i) {
        Node& container = root.containers.emplace_back(Node{&samples[1 + i], {}, {}});
        for (std::size_t k = 0; k < nEach; ++k)
            container.members.push_back(&samples[1 + kContainers + i * nEach + k]);
        SortByName(container.members);
    }
    std::ranges::sort(root.containers, &ComesBefore, &Node::self);
    return root;
}

// An index carries the node that its row is in; the root's carries none. Members need no memory of their own.
class TreeModel : public QAbstractItemModel
{
public:
    explicit TreeModel(Node& root) : m_root(root) {}

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override
    {
        return createIndex(row, column, parent.isValid() ? NodeAt(parent) : nullptr);
    }
    QModelIndex parent(const QModelIndex& index) const override
    {
        const Node* const pIn = In(index);
        if (!pIn)
            return {};
        return pIn == &m_root ? createIndex(0, 0, nullptr)
                              : createIndex(static_cast<int>(pIn - m_root.containers.data()), 0, &m_root);
    }
    int columnCount(const QModelIndex&) const override { return 1; }
    int rowCount(const QModelIndex& parent) const override
    {
        if (!parent.isValid())
            return 1;
        const Node* const pNode = NodeAt(parent);
        return pNode ? static_cast<int>(pNode->containers.size() + pNode->members.size()) : 0;
    }
    bool hasChildren(const QModelIndex& parent) const override { return rowCount(parent) > 0; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::DecorationRole)
            return {};
        const Node* const pNode = NodeAt(index);
        const Sample& object = *(pNode ? pNode->self : In(index)->members[static_cast<std::size_t>(index.row())]);
        return role == Qt::DisplayRole ? QVariant(NameOf(object)) : QVariant(IconOf(object, 16));
    }
    void Insert(const Sample* pObject)
    {
        const auto place = std::ranges::lower_bound(m_root.members, pObject, &ComesBefore);
        const int row = static_cast<int>(place - m_root.members.begin());
        beginInsertRows(index(0, 0), row, row);
        m_root.members.insert(place, pObject);
        endInsertRows();
    }

private:
    static Node* In(const QModelIndex& index) { return static_cast<Node*>(index.internalPointer()); }
    Node* NodeAt(const QModelIndex& index) const // NULL for a member
    {
        Node* const pIn = In(index);
        if (!pIn)
            return &m_root;
        const bool isContainer = static_cast<std::size_t>(index.row()) < pIn->containers.size();
        return isContainer ? &pIn->containers[static_cast<std::size_t>(index.row())] : nullptr;
    }

    Node& m_root;
};

template <class View>
std::unique_ptr<View> EmptyTree()
{
    auto view = std::make_unique<View>();
    view->setUniformRowHeights(true);
    view->setHeaderHidden(true);
    view->setIconSize({16, 16});
    ShowView(*view);
    return view;
}

QTreeWidgetItem* MakeItem(const Sample& object)
{
    auto* const pItem = new QTreeWidgetItem;
    pItem->setText(0, NameOf(object));
    pItem->setIcon(0, IconOf(object, 16));
    return pItem;
}

QTreeWidgetItem* MakeItems(const Node& node)
{
    QTreeWidgetItem* const pItem = MakeItem(*node.self);
    QList<QTreeWidgetItem*> children;
    for (const Node& container : node.containers)
        children.push_back(MakeItems(container));
    for (const Sample* pMember : node.members)
        children.push_back(MakeItem(*pMember));
    pItem->addChildren(children);
    return pItem;
}

} // namespace

void bench::OpenQtTree(Stopwatch& watch)
{
    const auto samples = MakeSamples(watch.Count() + kContainers + 1);
    while (watch.Next()) {
        const auto view = EmptyTree<QTreeView>();
        watch.Start();
        Node root = MakeTree(samples);
        TreeModel model(root);
        view->setModel(&model);
        const QModelIndex top = model.index(0, 0);
        view->expand(top);
        for (unsigned i = 0; i < kExpanded; ++i)
            view->expand(model.index(static_cast<int>(i), 0, top));
        PaintFrame(*view);
        watch.Stop();
        view->setModel(nullptr);
    }
}

void bench::OpenQtTreeItems(Stopwatch& watch)
{
    const auto samples = MakeSamples(watch.Count() + kContainers + 1);
    while (watch.Next()) {
        const auto view = EmptyTree<QTreeWidget>();
        watch.Start();
        QTreeWidgetItem* const pTop = MakeItems(MakeTree(samples));
        view->addTopLevelItem(pTop);
        pTop->setExpanded(true);
        for (unsigned i = 0; i < kExpanded; ++i)
            pTop->child(static_cast<int>(i))->setExpanded(true);
        PaintFrame(*view);
        watch.Stop();
    }
}

void bench::InsertIntoQtTree(Stopwatch& watch)
{
    const auto samples = MakeSamples(watch.Count() + kContainers + 1);
    while (watch.Next()) {
        const auto view = EmptyTree<QTreeView>();
        Node root{&samples[0], {}, {&samples[1]}};
        TreeModel model(root);
        view->setModel(&model);
        view->expand(model.index(0, 0));
        PaintFrame(*view);
        watch.Start();
        for (unsigned i = 2; i <= watch.Count(); ++i)
            model.Insert(&samples[i]);
        PaintFrame(*view);
        watch.Stop();
        view->setModel(nullptr);
    }
}

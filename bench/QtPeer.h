// Qt's own views in the hands of somebody who knows them: rows and items of one size, one pass of layout, no updates
// while many rows are added, a model that keeps nothing but the order of the objects.
#pragma once

#include "bench/Samples.h"
#include "bench/Stopwatch.h"

#include <QAbstractItemView>
#include <QIcon>
#include <memory>

namespace bench
{

using Objects = std::vector<const Sample*>;

Objects PointersTo(const std::vector<Sample>& samples);
bool ComesBefore(const Sample* a, const Sample* b); // without regard to case
void SortByName(Objects& objects);                  // by keys of 16 bytes, each read once

const QIcon& IconOf(const Sample& sample, int extent);
QString NameOf(const Sample& sample);

void ShowView(QAbstractItemView& view);
void PaintFrame(QWidget& view); // into a picture in memory

void OpenQtTree(Stopwatch& watch);       // QTreeView over a model
void OpenQtTreeItems(Stopwatch& watch);  // QTreeWidget
void InsertIntoQtTree(Stopwatch& watch); // QTreeView over a model
void SortKeysAlone(Stopwatch& watch);
void PaintPlainFrames(Stopwatch& watch); // of so many rows

} // namespace bench

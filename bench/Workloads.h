// What the comparisons run: the workload's name and a number of objects give one line about how long it took. Other
// toolkits' programs have the same command line, show the same objects in a window of the same size, and print lines
// of the same kind. A frame is complete when it is painted in memory; nobody presents it.
#pragma once

#include "bench/Stopwatch.h"

namespace bench
{

// Each runs as often as the stopwatch says. A warm-up runs them with a stopwatch that prints nothing.
void OpenList(Stopwatch& watch);   // the container's members up to the first complete frame
void ScrollList(Stopwatch& watch); // 200 frames from the first row to the last
void SelectAllOfList(Stopwatch& watch);
void AppendToList(Stopwatch& watch);   // a thousand atoms, each announced alone
void OpenTree(Stopwatch& watch);       // the whole hierarchy, a few containers expanded, up to the first frame
void InsertIntoTree(Stopwatch& watch); // into one expanded container, each atom announced alone
void AddToTree(Stopwatch& watch);      // a thousand atoms more into one expanded container, each announced alone
void ShowThumbs(Stopwatch& watch);     // all thumbnails, page by page

} // namespace bench

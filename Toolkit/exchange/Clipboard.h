// The clipboard as this program sees it. Internal to this room.
#pragma once

#include <memory>

class COleDataSource;

namespace toolkit
{
class DataCache;
class DataProvider;

// false: it is not to be had, and the source is gone
bool OwnClipboard(std::unique_ptr<COleDataSource> source, std::shared_ptr<DataCache> data);
COleDataSource* ClipboardOwner();
void FlushClipboard();

std::shared_ptr<DataProvider> ClipboardData(); // this program's or another's; NULL when there is none
} // namespace toolkit

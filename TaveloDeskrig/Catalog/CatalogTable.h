#pragma once

#include "AppItem.h"

namespace Tavelo::Catalog
{

/// Builds the table afresh; everybody but the catalog itself reads `items`.
QList<AppItem> makeItems();

} // namespace Tavelo::Catalog

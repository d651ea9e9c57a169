#pragma once

#include "AppItem.h"

#include <QList>
#include <QSet>
#include <QString>

/// The fixed list of office items, and the rules that turn a selection of them into an install plan.
///
/// A preset is a selection by group, cleaned of `blocked` items and of duplicates:
///
///   minimal   the items of the group `office`
///   standard  the items of any of `standardGroups`
///   full      all items
///
/// The selecting itself is left to the front ends, which differ on purpose: the desktop starts from the list that the
/// cloud has narrowed and leaves out what this macOS is too old for, the command line starts from `items` and lets the
/// install blockers name such an item.
namespace Tavelo::Catalog
{

/// The 28 items, in the order in which they are shown and installed. Built at the first call; never changes, and may be
/// read from any thread.
const QList<AppItem> &items();

/// The groups whose items make the standard preset.
const QSet<QString> &standardGroups();

/// Whether the item belongs to one of them.
bool isStandard(const AppItem &item);

/// The items without those that would repeat an earlier one's install, in the order given; the first one stays. Two
/// items are the same install when they have the same kind and the same shortcut file, else the same packages in the
/// same order; an item with neither is like no other.
QList<AppItem> uniqueInstallItems(const QList<AppItem> &items);

} // namespace Tavelo::Catalog

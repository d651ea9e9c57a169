#pragma once

#include "AppItem.h"

#include <QJsonObject>
#include <QList>

/// How the cloud narrows and reorders the catalog. It can do no more: no row adds an item or changes a field of one.
///
/// Rows are untrusted. A row or a key of another shape than told here is passed over without a word, and other keys are
/// not looked at.
namespace Tavelo::Catalog
{

/// The items without those that a published row hides, the ones with a place first.
///
/// A row names its item with the text `item_id`. `is_active` false hides the item. The number `sort_order` is its
/// place, cut to an integer; items with a place come before those without, the lower first, and all others stay in
/// their order. Of several rows for an item the last one counts, as a whole.
QList<AppItem> applyingCloudOverlay(const QList<QJsonObject> &rows, const QList<AppItem> &items);

/// The items that every one of an organisation's policies leaves, in their order.
///
/// A row's object `policy` may hold `disabled_item_ids`, which hides, and `allowed_item_ids`, which hides all others;
/// each is a list of nothing but texts. An empty list of allowed ids hides everything, a missing one nothing.
QList<AppItem> applyingBusinessPolicies(const QList<QJsonObject> &rows, const QList<AppItem> &items);

} // namespace Tavelo::Catalog

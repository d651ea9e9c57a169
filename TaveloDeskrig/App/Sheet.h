#pragma once

#include "AppItem.h"
#include "InstalledMacApplication.h"

#include <QObject>
#include <QString>

#include <variant>

namespace Tavelo
{

/// A namespace of its own for views, which know an enum by what surrounds it.
inline namespace Sheets
{
Q_NAMESPACE

enum class SheetKind { none, itemDetail, auditDetail, settings, systemChecks, report, cloudTools };
Q_ENUM_NS(SheetKind)

} // namespace Sheets

/// The one sheet that lies over the window, with what it shows.
class Sheet
{
public:
    using Kind = SheetKind;

    /// No sheet.
    Sheet() = default;
    /// One that shows the state of the program; not for the two that show one thing.
    explicit Sheet(Kind kind) : m_kind(kind) {}
    static Sheet itemDetail(const AppItem &item) { return {Kind::itemDetail, item}; }
    static Sheet auditDetail(const InstalledMacApplication &application) { return {Kind::auditDetail, application}; }

    Kind kind() const { return m_kind; }
    /// What the sheet shows; null where it is another one.
    const AppItem *item() const { return std::get_if<AppItem>(&m_shown); }
    const InstalledMacApplication *application() const { return std::get_if<InstalledMacApplication>(&m_shown); }

    /// Tells one sheet from another, such as "item-vlc"; empty for none.
    QString id() const;

    bool operator==(const Sheet &) const = default;

private:
    using Shown = std::variant<std::monostate, AppItem, InstalledMacApplication>;
    Sheet(Kind kind, Shown shown) : m_kind(kind), m_shown(std::move(shown)) {}

    Kind m_kind = Kind::none;
    Shown m_shown;
};

} // namespace Tavelo

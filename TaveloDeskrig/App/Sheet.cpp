#include "Sheet.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

QString Sheet::id() const
{
    switch (m_kind) {
    case Kind::none:
        break;
    case Kind::itemDetail:
        return u"item-"_s + item()->id;
    case Kind::auditDetail:
        // One application may lie in several places, and one identifier may belong to several applications.
        return u"audit-"_s + application()->identifier + u'-' + application()->name;
    case Kind::settings:
        return u"settings"_s;
    case Kind::systemChecks:
        return u"system-checks"_s;
    case Kind::report:
        return u"report"_s;
    case Kind::cloudTools:
        return u"cloud-tools"_s;
    }
    return {};
}

} // namespace Tavelo

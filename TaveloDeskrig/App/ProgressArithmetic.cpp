#include "ProgressArithmetic.h"

#include <algorithm>

namespace Tavelo::ProgressArithmetic
{

double clamp(double share)
{
    return share > 0 ? std::min(share, 1.0) : 0; // what is no number is not above 0 either
}

double share(qsizetype done, qsizetype total)
{
    return total < 1 ? 0 : clamp(static_cast<double>(done) / static_cast<double>(total));
}

int percent(double share)
{
    return qRound(clamp(share) * 100);
}

QString percentText(double share)
{
    return QStringLiteral("%1%").arg(percent(share));
}

QString cutPercentText(qsizetype done, qsizetype total)
{
    return QStringLiteral("%1%").arg(total < 1 ? 0 : done * 100 / total);
}

double operationShare(double itemShare, qsizetype completedItems, qsizetype totalItems)
{
    return clamp((clamp(itemShare) + static_cast<double>(completedItems)) /
                 static_cast<double>(std::max<qsizetype>(totalItems, 1)));
}

} // namespace Tavelo::ProgressArithmetic

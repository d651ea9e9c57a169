#pragma once

#include <QByteArray>
#include <QString>

namespace Tavelo
{

/// How `lines` differ from the golden file of that name in tests/golden, as lines that begin with "-" or "+"; empty
/// where they are the same. With TAVELO_RENEW_GOLDEN in the environment the file becomes `lines` first.
QByteArray differencesFromGolden(const QString &name, const QByteArray &lines);

} // namespace Tavelo

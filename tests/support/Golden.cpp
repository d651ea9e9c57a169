#include "Golden.h"

#include <QFile>

namespace Tavelo
{

QByteArray differencesFromGolden(const QString &name, const QByteArray &lines)
{
    QFile file(QStringLiteral(GOLDEN "/") + name);
    if (qEnvironmentVariableIsSet("TAVELO_RENEW_GOLDEN") &&
        (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size()))
        qFatal("cannot write %s", qPrintable(file.fileName()));
    file.close();
    const QByteArray kept = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (kept == lines)
        return {};
    QByteArray differences = "\n";
    const QList<QByteArray> before = kept.split('\n'), after = lines.split('\n');
    for (const QByteArray &line : before)
        differences += after.contains(line) ? QByteArray() : "- " + line + '\n';
    for (const QByteArray &line : after)
        differences += before.contains(line) ? QByteArray() : "+ " + line + '\n';
    return differences + "or another order of lines; scripts/renew-golden, then git diff, tells more";
}

} // namespace Tavelo

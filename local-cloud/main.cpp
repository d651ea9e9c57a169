// A small cloud of one's own, for tests and for trying the program without a deployment. See docs/local-cloud.md.
#include "Certificate.h"
#include "LocalCloud.h"
#include "StateFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

constexpr int validDays = 90;
constexpr auto anonKey = "local-anon-key";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The folder's certificate, so that who trusts it today trusts it tomorrow; a new one where there is none, it is for
/// other names, or it has run out.
Certificate certificateIn(const QString &folder, const QStringList &names)
{
    const QString authority = folder + u"/authority.crt"_s, server = folder + u"/server.crt"_s,
                  serverKey = folder + u"/server.key"_s;
    Certificate kept{contents(authority), contents(server), contents(serverKey)};
    if (kept.serves(names, QDateTime::currentDateTime().addDays(1)))
        return kept;
    Certificate made = Certificate::make(names, validDays);
    StateFile::replacePrivate(serverKey, made.serverKey);
    StateFile::replace(server, made.server);
    StateFile::replace(authority, made.authority);
    return made;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"A small cloud over the files of a folder."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"FOLDER"_s, u"Where its state lies; made if it is not there."_s);
    const QCommandLineOption port(u"port"_s, u"Port to listen on; 0, the default, takes a free one."_s, u"NUMBER"_s,
                                  u"0"_s);
    const QCommandLineOption name(u"name"_s, u"Name or address that its certificate holds (default: localhost)."_s,
                                  u"NAME"_s);
    parser.addOptions({port, name});
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    const QString folder = QDir(parser.positionalArguments().constFirst()).absolutePath();
    QDir().mkpath(folder);
    const QStringList names = parser.isSet(name) ? parser.values(name) : QStringList{u"localhost"_s};
    LocalCloud cloud(folder, anonKey, certificateIn(folder, names));
    const quint16 actual = cloud.listen(QHostAddress::LocalHost, parser.value(port).toUShort());
    QTextStream errors(stderr), output(stdout);
    if (actual == 0) {
        errors << u"Cannot listen on port %1\n"_s.arg(parser.value(port));
        return 1;
    }
    output << u"export TAVELO_SUPABASE_URL=https://%1:%2\n"_s.arg(names.constFirst()).arg(actual)
           << u"export TAVELO_SUPABASE_ANON_KEY=%1\n"_s.arg(QLatin1StringView(anonKey));
    output.flush();
    errors << u"Its authority, for whoever should trust it: %1/authority.crt\n"_s.arg(folder);
    errors.flush();
    return QCoreApplication::exec();
}

// Where the program leaves its traces on a Mac full of other people's secrets, and what it never writes down.

#include "ProgramOnAMac.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// What a file is now, by its Mac path. Folders count by their name, links by where they lead.
QHash<QString, QByteArray> filesOn(const ProgramOnAMac &mac)
{
    QHash<QString, QByteArray> found;
    const QString root = mac.hostPath(QString());
    QDirIterator each(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QFileInfo info(each.next());
        QByteArray what = "folder";
        if (info.isSymLink()) {
            what = "link to " + QFile::encodeName(info.symLinkTarget());
        } else if (info.isFile()) {
            QFile file(info.filePath());
            what = file.open(QFile::ReadOnly) ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1)
                                              : QByteArray("unreadable");
        }
        found.insert(info.filePath().mid(root.size()), what);
    }
    return found;
}

/// The places where the program may write.
const QRegularExpression told(u"^/Users/technician/(Applications(/Tavelo Deskrig(/[^/]+\\.webloc)?)?"
                              "|Library/Logs(/tavelo-deskrig\\.log)?"
                              "|Library/Application Support/Tavelo Deskrig(/Reports(/tavelo-deskrig-report\\.txt)?)?"
                              "|Library/Caches(/tavelo-deskrig(/downloads(/[^/]+)?|/mounts|/extract)?)?)$"_s);

} // namespace

class WrittenPlacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsWrittenElsewhereNorThroughLinks()
    {
        const ProgramOnAMac mac;
        mac.furnish(u"populate"_s, {});
        const QHash<QString, QByteArray> before = filesOn(mac);
        QCOMPARE(mac.run(u"--preset full --yes"_s).status, 0);
        QCOMPARE(mac.run(u"--check"_s).status, 0);

        // What the Mac's own tools keep, and what was to be installed.
        const QRegularExpression tools(
            u"^/(private/var/(log/)?simulated-mac|opt/homebrew)(/|$)|^/Applications/[^/]*\\.app(/|$)"
            "|^/Users/technician/Library/(Fonts|Preferences|Application Support/LibreOffice)(/|$)"
            "|^/private/var/db/receipts/"_s);
        const QHash<QString, QByteArray> after = filesOn(mac);
        qsizetype own = 0;
        for (auto file = after.cbegin(); file != after.cend(); ++file) {
            if (before.value(file.key()) == file.value() || tools.match(file.key()).hasMatch())
                continue;
            QVERIFY2(told.match(file.key()).hasMatch(), qPrintable(file.key()));
            ++own;
            // Downloads are as private as their folder; shortcuts are for everybody.
            if (!file.key().contains(u"tavelo", Qt::CaseInsensitive) || file.key().contains(u"/downloads/") ||
                file.key().startsWith(u"/Users/technician/Applications"))
                continue;
            QVERIFY2((mac.mode(file.key()) & 077) == 0, qPrintable(file.key()));
            QVERIFY2(!mac.contents(file.key()).contains("TAVELO-SECRET"), qPrintable(file.key()));
        }
        QVERIFY(own > 10);
        for (auto file = before.cbegin(); file != before.cend(); ++file)
            QVERIFY2(after.contains(file.key()), qPrintable(file.key()));

        // On another Mac, links lie where those files were written, and lead to what is another's.
        const ProgramOnAMac linked;
        const QString victims = linked.hostPath(u"/Users/technician/victims"_s);
        QVERIFY(QDir().mkpath(victims));
        int planted = 0;
        for (auto file = after.cbegin(); file != after.cend(); ++file) {
            if (file.value() == "folder" || !told.match(file.key()).hasMatch() || linked.exists(file.key()))
                continue;
            QFile victim(victims + u'/' + QString::number(++planted));
            QVERIFY(victim.open(QFile::WriteOnly) && victim.write("mine") == 4);
            QVERIFY(victim.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
            QVERIFY(QDir().mkpath(QFileInfo(linked.hostPath(file.key())).path()));
            QVERIFY(QFile::link(victim.fileName(), linked.hostPath(file.key())));
        }
        QVERIFY(planted >= 9);
        QCOMPARE(linked.run(u"--preset full --yes"_s).status, 0);
        QCOMPARE(linked.run(u"--check"_s).status, 0);
        for (; planted > 0; --planted) {
            const QString victim = u"/Users/technician/victims/"_s + QString::number(planted);
            QCOMPARE(linked.contents(victim), "mine");
            QCOMPARE(linked.mode(victim), 0604);
        }
    }
};

QTEST_GUILESS_MAIN(WrittenPlacesTest)
#include "WrittenPlacesTest.moc"

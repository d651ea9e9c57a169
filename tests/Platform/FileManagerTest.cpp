#include "FileManager.h"
#include "Row.h"
#include "TemporaryMac.h"

#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class FileManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreTheMacs()
    {
        const HostRoot root = m_files.root();
        QCOMPARE(root.macPath(root.hostPath(u"/a/b"_s)), u"/a/b"_s);
        QCOMPARE(root.macPath(root.folder()), u"/"_s);
        QCOMPARE(root.macPath(root.folder() + u"-2/a"_s), root.folder() + u"-2/a"_s);
        m_mac.furnish(
            u"mkdir links; echo tool >tool; ln -s ../tool links/tool; ln -s gone links/gone; ln -s . again"_s);
        QCOMPARE(m_files.contents(u"/links/tool"_s), "tool\n");
        QVERIFY(!m_files.exists(u"/links/gone"_s));
        QCOMPARE(HostRoot(m_mac.hostPath(u"/again"_s)).folder(), QFileInfo(m_mac.folder()).canonicalFilePath());
    }

    void enumerates_data()
    {
        columns<EnumerationOptions, QString, QString>("options", "stopAt", "found");
        using enum EnumerationOption;
        row("skipHidden", EnumerationOptions(skipHidden), "", "A.app/ A.app/in b link sub/ sub/c");
        row("skipPackages", EnumerationOptions(skipPackageDescendants), "", ".h/ .h/x A.app/ b link sub/ sub/c");
        row("visitor stops below", EnumerationOptions(), "in", ".h/ .h/x A.app/ A.app/in");
    }

    void enumerates()
    {
        QFETCH(EnumerationOptions, options);
        QFETCH(QString, stopAt);
        m_mac.furnish(
            u"mkdir -p e/sub e/A.app e/.h; touch e/sub/c e/A.app/in e/.h/x e/b; test -L e/link || ln -s sub e/link"_s);
        QStringList found;
        QVERIFY(m_files.enumerate(u"/e"_s, options, [&](const FolderEntry &entry) {
            found.append(entry.path.mid(3) + (entry.isFolder ? u"/"_s : QString()));
            return entry.name == stopAt ? Walk::stop : Walk::onwards;
        }));
        QTEST(found.join(u' '), "found");
        QVERIFY(!m_files.enumerate(u"/e/b"_s, options, [](const FolderEntry &) { return Walk::onwards; }));
    }

    void refusalsTellWhyAndLeaveWhatWasThere()
    {
        m_mac.furnish(u"mkdir w; printf old >w/file; mkfifo pipe"_s);
        FileError error;
        const auto code = [&](bool done) {
            return !done && error.text == QString::fromLocal8Bit(std::strerror(error.code)) ? error.code : -1;
        };
        QCOMPARE(code(m_files.contents(u"/w"_s, &error).has_value()), EISDIR);
        QCOMPARE(code(m_files.contents(u"/pipe"_s, &error).has_value()), EINVAL);
        QCOMPARE(code(m_files.append(u"/pipe"_s, "x", &error)), ENXIO);
        QCOMPARE(code(m_files.createFolder(u"/w/file"_s, 0700, &error)), EEXIST);
        QVERIFY(code(m_files.createFolder(u"/w/file/a/b"_s, 0700, &error)) > 0);
        const FileManager noMac(HostRoot(m_files.root().folder() + u"/nowhere"_s));
        QCOMPARE(code(noMac.createFolder(u"/Library/Logs"_s, 0700, &error)), ENOENT);
        QCOMPARE(code(m_files.writeAtomically(u"/w/file/x"_s, "x", 0600, &error)), ENOTDIR);
        QCOMPARE(m_mac.contents(u"/w/file"_s), "old");
    }

    void atomicWriteIsNeverWider()
    {
        m_mac.furnish(u"mkdir p; touch p/file; chmod 600 p/file"_s);
        std::atomic<bool> done = false;
        int seen = 0;
        std::thread watcher([&] {
            while (!done)
                m_files.enumerate(u"/p"_s, {}, [&](const FolderEntry &entry) {
                    seen |= std::max(m_mac.mode(entry.path), 0);
                    return Walk::onwards;
                });
        });
        const mode_t mask = ::umask(0);
        const bool written = m_files.writeAtomically(u"/p/file"_s, QByteArray(8 << 20, 'x'), 0600);
        ::umask(mask);
        done = true;
        watcher.join();
        QVERIFY(written);
        QCOMPARE(seen, 0600);
    }

    void plantedLinksReachNoOtherFile()
    {
        m_mac.furnish(u"mkdir -m 755 v links2; mkfifo pipe2; printf mine >v/file; chmod 644 v/file; "
                      "ln -s ../v links2/folder; ln -s ../v/file links2/file; ln -s ../v/none links2/nowhere"_s);
        FileError error;
        QVERIFY(!m_files.append(u"/links2/file"_s, "x", &error));
        QCOMPARE(error.code, ELOOP);
        m_files.setMode(u"/links2/file"_s, 0600);
        QVERIFY(!m_files.createFile(u"/links2/file"_s, 0600) && !m_files.createFile(u"/links2/nowhere"_s, 0600));
        QVERIFY(!m_mac.exists(u"/v/none"_s));
        QVERIFY(m_files.writeAtomically(u"/links2/file"_s, "new", 0600) && m_files.setMode(u"/links2/file"_s, 0600));
        QCOMPARE(m_mac.contents(u"/v/file"_s), "mine");
        QCOMPARE(m_mac.mode(u"/v/file"_s), 0644);
        QVERIFY(m_files.setMode(u"/links2/folder"_s, 0700));
        QCOMPARE(m_mac.mode(u"/v"_s), 0700);

        const int reader = ::open(qPrintable(m_mac.hostPath(u"/pipe2"_s)), O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0 && !m_files.append(u"/pipe2"_s, "x", &error));
        QCOMPARE(error.code, EINVAL);
        ::close(reader);
    }

    void removesAbandonedTemporariesOnly()
    {
        m_mac.furnish(u"mkdir a; cd a; mkdir .tavelo-deskrig-folder; ln -s kept .tavelo-deskrig-linked; "
                      "touch .tavelo-deskrig-aB3xYz .tavelo-config kept; touch -h -d '2 days ago' * .tavelo-*; "
                      "touch .tavelo-deskrig-recent"_s);
        m_files.removeAbandonedTemporaries(u"/a"_s);
        m_mac.furnish(u"test \"$(ls -A a | tr '\\n' ' ')\" = "
                      "'.tavelo-config .tavelo-deskrig-folder .tavelo-deskrig-linked .tavelo-deskrig-recent kept '"_s);
    }

    void removesLinksAndNotTheirTargets()
    {
        m_mac.furnish(u"mkdir -p kept r/in; touch kept/x; ln -s ../../kept r/in/link; ln -s kept alias"_s);
        QVERIFY(m_files.remove(u"/alias"_s) && m_files.remove(u"/r"_s) && !m_files.remove(u"/r"_s));
        QVERIFY(!m_mac.exists(u"/r"_s) && m_mac.exists(u"/kept/x"_s));
    }

private:
    TemporaryMac m_mac;
    FileManager m_files{HostRoot(m_mac.folder())};
};

QTEST_GUILESS_MAIN(FileManagerTest)

#include "FileManagerTest.moc"

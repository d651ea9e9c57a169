#include "SystemChecks.h"

#include "FileManager.h"
#include "Row.h"
#include "SystemFacts.h"
#include "Workshop.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

constexpr qint64 gibibyte = 1LL << 30;

/// A Mac that nothing is wrong with, but for what a row changes.
struct Machine {
    QString furniture = u":"_s;
    QString version = u"14.0"_s;
    QString processor = u"arm64"_s;
    std::optional<qint64> freeBytes = 5 * gibibyte;
    bool isRoot = false;
};

struct StatedFiles : FileManager {
    StatedFiles(const TemporaryMac &mac, std::optional<qint64> free) : FileManager(HostRoot(mac.folder())), bytes(free)
    {
    }
    std::optional<qint64> freeBytes(const QString &path) const override { return path == u"/" ? bytes : std::nullopt; }
    std::optional<qint64> bytes;
};

struct StatedFacts : SystemFacts {
    using SystemFacts::SystemFacts;
    QString machineName() const override { return machine.processor; }
    bool isRoot() const override { return machine.isRoot; }
    Machine machine;
};

} // namespace

class SystemChecksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksAndBlockers_data()
    {
        // worse: the checks that differ from those of the first row
        // kinds: of the items that are to be installed; the last one needs macOS 14
        columns<Machine, QString, QList<AppKind>, QString>("machine", "worse", "kinds", "blockers");
        using enum AppKind;
        using Kinds = QList<AppKind>;
        const QString noBrew = u"CHECK WARN: Homebrew - Chưa tìm thấy brew. Cài từ https://brew.sh|"
                               "CHECK WARN: Internet connection - Không phân giải được formulae.brew.sh."_s;
        const QString noOffice = u"|CHECK WARN: ONLYOFFICE - Chưa cài."_s;
        const QString brewAndNetwork =
            u"Chưa có Homebrew. Cài Homebrew từ https://brew.sh rồi chạy lại.|"
            "Không phân giải được formulae.brew.sh. Kiểm tra Internet/DNS trước khi cài bằng Homebrew."_s;
        const auto space = [](int free) { return u"CHECK FAIL: Dung lượng trống - %1GB trống trên /."_s.arg(free); };
        const auto tooFull = [](int needed, int free) {
            return u"Cần tối thiểu %1GB trống trên /. Hiện còn %2GB."_s.arg(needed).arg(free);
        };
        row("well", Machine(), "", Kinds{formula, bundle}, "");
        row("12", Machine{.version = u"12.7.6"_s},
            "CHECK WARN: macOS compatibility - macOS 12.7.6 legacy. Homebrew/app cask có thể thiếu package.",
            Kinds{shortcut}, "Item yêu cầu macOS 14 trở lên.");
        row("root", Machine{.isRoot = true}, "CHECK WARN: user mode - Không nên chạy Homebrew GUI app bằng root.",
            Kinds{cask}, "");
        row("no developer tools", Machine{.furniture = u"rm usr/bin/xcode-select"_s},
            "CHECK WARN: Xcode Command Line Tools - Không bắt buộc để mở app. Chỉ có thể cần khi Homebrew phải build "
            "formula từ source.",
            Kinds{cask}, "");
        const QString bare = u"rm opt/homebrew/bin/brew etc/hosts"_s;
        row("bare, mime", Machine{.furniture = bare}, noBrew + noOffice, Kinds{mime}, brewAndNetwork);
        row("bare, direct", Machine{.furniture = bare}, noBrew + noOffice, Kinds{direct}, "");
        row("one, 1 GB", Machine{.freeBytes = gibibyte}, space(1), Kinds{cask, shortcut, builtin, mime}, "");
        row("one, less", Machine{.freeBytes = gibibyte - 1}, space(0), Kinds{direct}, tooFull(1, 0));
        row("two, less", Machine{.freeBytes = 5 * gibibyte - 1}, space(4), Kinds{direct, direct}, tooFull(5, 4));
        row("unfit", Machine{bare, u"11.9"_s, u"i386"_s, std::nullopt},
            u"CHECK FAIL: macOS compatibility - macOS 11.9.0 quá cũ. Target tối thiểu: macOS 13.|"
            "CHECK FAIL: CPU architecture - i386|"_s +
                noBrew + u'|' + space(0) + noOffice,
            Kinds{bundle},
            u"macOS 11.9.0 quá cũ. Target tối thiểu: macOS 13.|"
            "Chỉ hỗ trợ CPU arm64 hoặc x86_64. Máy hiện tại: i386.|Item yêu cầu macOS 14 trở lên.|"_s +
                brewAndNetwork + u'|' + tooFull(1, 0));
    }

    void checksAndBlockers()
    {
        QFETCH(Machine, machine);
        QFETCH(QList<AppKind>, kinds);
        TemporaryMac mac;
        mac.setVersion(machine.version);
        mac.addTool(u"/usr/bin/xcode-select"_s, "test \"$*\" = -p");
        addBrew(mac, u"cask:onlyoffice"_s);
        mac.addApp(u"/Applications/ONLYOFFICE.app"_s, u"org.example"_s);
        mac.furnish(machine.furniture);
        mac.environment.remove(u"USER"_s);
        PlatformServices services = mac.services();
        services.files = std::make_shared<StatedFiles>(mac, machine.freeBytes);
        const auto facts = std::make_shared<StatedFacts>(services.files, mac.environment);
        facts->machine = machine;
        services.facts = facts;
        const Workshop shop(services);

        const QStringList well =
            u"macOS compatibility - macOS 14.0.0.|CPU architecture - arm64|Homebrew - /opt/homebrew/bin/brew|"
            "Internet connection - Có thể phân giải formulae.brew.sh.|Xcode Command Line Tools - Đã có xcode-select.|"
            "Dung lượng trống - 5GB trống trên /.|user mode - User: unknown|ONLYOFFICE - Đã cài."_s.split(u'|');
        QStringList worse;
        for (const SystemCheck &check : shop.backend.systemChecks()) {
            const QString line = logLine(check);
            if (!line.startsWith(u"CHECK OK: ") || !well.contains(line.mid(10)))
                worse.append(line);
        }
        QVERIFY(worse.removeOne(u"CHECK WARN: LibreOffice - Chưa cài."));
        QTEST(worse.join(u'|'), "worse");

        QList<AppItem> items;
        for (const AppKind kind : kinds)
            items.append(anItem(kind));
        items.last().minimumMacOSMajor = 14;
        QTEST(shop.backend.installBlockers(items).join(u'|'), "blockers");
    }
};

QTEST_GUILESS_MAIN(SystemChecksTest)

#include "SystemChecksTest.moc"

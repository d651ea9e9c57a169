#include "FileManager.h"
#include "Row.h"
#include "SystemFacts.h"
#include "Workshop.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

using Level = SystemCheck::Level;

constexpr qint64 gibibyte = 1LL << 30;

/// A Mac that nothing is wrong with, but for what a row changes.
struct Machine {
    QString version = u"15.1"_s;
    QString processor = u"arm64"_s;
    std::optional<qint64> freeBytes = 5 * gibibyte;
    bool hasBrew = true;
    bool hasNetwork = true;
    bool isRoot = false;
    bool hasDeveloperTools = true;
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

PlatformServices furnish(TemporaryMac &mac, const Machine &machine)
{
    mac.setVersion(machine.version);
    mac.addTool(u"/usr/bin/xcode-select"_s, machine.hasDeveloperTools ? "test \"$*\" = -p" : "exit 2");
    if (machine.hasBrew)
        addBrew(mac, u"cask:onlyoffice"_s);
    if (!machine.hasNetwork)
        mac.write(u"/etc/hosts"_s, {});
    mac.environment.remove(u"USER"_s);
    PlatformServices services = mac.services();
    services.files = std::make_shared<StatedFiles>(mac, machine.freeBytes);
    const auto facts = std::make_shared<StatedFacts>(services.files, mac.environment);
    facts->machine = machine;
    services.facts = facts;
    return services;
}

} // namespace

class SystemChecksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checks_data()
    {
        columns<Machine, QString, Level, QString>("machine", "name", "level", "detail");
        using enum Level;
        row("well", Machine(), "user mode", ok, "User: unknown");
        row("brew", Machine(), "Homebrew", ok, "/opt/homebrew/bin/brew");
        row("network", Machine(), "Internet connection", ok, "Có thể phân giải formulae.brew.sh.");
        row("developer tools", Machine(), "Xcode Command Line Tools", ok, "Đã có xcode-select.");
        row("12", Machine{.version = u"12.7.6"_s}, "macOS compatibility", warn,
            "macOS 12.7.6 legacy. Homebrew/app cask có thể thiếu package.");
        row("11", Machine{.version = u"11.9"_s}, "macOS compatibility", fail,
            "macOS 11.9.0 quá cũ. Target tối thiểu: macOS 13.");
        row("other processor", Machine{.processor = u"riscv64"_s}, "CPU architecture", fail, "riscv64");
        row("no brew", Machine{.hasBrew = false}, "Homebrew", warn, "Chưa tìm thấy brew. Cài từ https://brew.sh");
        row("no network", Machine{.hasNetwork = false}, "Internet connection", warn,
            "Không phân giải được formulae.brew.sh.");
        row("no developer tools", Machine{.hasDeveloperTools = false}, "Xcode Command Line Tools", warn,
            "Không bắt buộc để mở app. Chỉ có thể cần khi Homebrew phải build formula từ source.");
        row("less", Machine{.freeBytes = 5 * gibibyte - 1}, "Dung lượng trống", fail, "4GB trống trên /.");
        row("root", Machine{.isRoot = true}, "user mode", warn, "Không nên chạy Homebrew GUI app bằng root.");
        row("disk unknown", Machine{.freeBytes = {}}, "Dung lượng trống", fail, "0GB trống trên /.");
    }

    /// What a machine lacks shows in its own check alone; the two applications are missing at first.
    void checks()
    {
        QFETCH(Machine, machine);
        QFETCH(QString, name);
        TemporaryMac mac;
        const Workshop shop(furnish(mac, machine));
        int found = 0;
        for (const SystemCheck &check : shop.backend.systemChecks()) {
            const bool isApplication = check.name == u"LibreOffice" || check.name == u"ONLYOFFICE";
            if (check.name == name) {
                ++found;
                QTEST(check.level, "level");
                QTEST(check.detail, "detail");
            } else {
                QCOMPARE(check.level, isApplication ? Level::warn : Level::ok);
            }
        }
        QCOMPARE(found, 1);
        mac.addApp(u"/Applications/ONLYOFFICE.app"_s, u"org.example"_s);
        for (const SystemCheck &check : shop.backend.systemChecks()) {
            if (check.name == u"ONLYOFFICE")
                QCOMPARE(check.level, machine.hasBrew ? Level::ok : Level::warn);
        }
    }

    void blockers_data()
    {
        columns<Machine, QList<AppKind>, QString>("machine", "kinds", "blockers");
        using enum AppKind;
        using Kinds = QList<AppKind>;
        const Machine bare{.freeBytes = 0, .hasBrew = false, .hasNetwork = false};
        const Machine unfit{
            .version = u"11.0"_s, .processor = u"i386"_s, .freeBytes = 0, .hasBrew = false, .hasNetwork = false};
        const QString brewAndNetwork =
            u"Chưa có Homebrew. Cài Homebrew từ https://brew.sh rồi chạy lại.|"
            "Không phân giải được formulae.brew.sh. Kiểm tra Internet/DNS trước khi cài bằng Homebrew."_s;
        const QString disk = u"Cần tối thiểu 1GB trống trên /. Hiện còn 0GB."_s;
        row("one, 1 GB", Machine{.freeBytes = gibibyte}, Kinds{cask, shortcut, builtin, mime}, "");
        row("one, less", Machine{.freeBytes = gibibyte - 1}, Kinds{direct}, disk);
        row("two, 5 GB, 14", Machine{.version = u"14.0"_s}, Kinds{formula, bundle}, "");
        row("two, less", Machine{.freeBytes = 5 * gibibyte - 1}, Kinds{direct, direct},
            "Cần tối thiểu 5GB trống trên /. Hiện còn 4GB.");
        row("bare, mime", bare, Kinds{mime}, brewAndNetwork);
        row("bare, direct", bare, Kinds{direct}, disk);
        row("unfit, bundle", unfit, Kinds{bundle},
            u"macOS 11.0.0 quá cũ. Target tối thiểu: macOS 13.|"
            "Chỉ hỗ trợ CPU arm64 hoặc x86_64. Máy hiện tại: i386.|Item yêu cầu macOS 14 trở lên.|"_s +
                brewAndNetwork + u'|' + disk);
    }

    void blockers()
    {
        QFETCH(Machine, machine);
        QFETCH(QList<AppKind>, kinds);
        TemporaryMac mac;
        const Workshop shop(furnish(mac, machine));
        QList<AppItem> items;
        for (const AppKind kind : kinds)
            items.append(anItem(kind));
        items.last().minimumMacOSMajor = 14;
        QTEST(shop.backend.installBlockers(items).join(u'|'), "blockers");
    }
};

QTEST_GUILESS_MAIN(SystemChecksTest)

#include "SystemChecksTest.moc"

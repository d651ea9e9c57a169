#include "TaveloCLI.h"

#include "Catalog.h"
#include "CommandLineApplication.h"
#include "Console.h"
#include "FileManager.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "PrintedColumn.h"

#include <algorithm>

namespace Tavelo::TaveloCLI
{

namespace
{

enum ExitStatus { succeeded = 0, failed = 1, wrongUsage = 2, notConfirmed = 130 };

const QString presetPrefix = QStringLiteral("--preset=");

const QString usage = QStringLiteral(R"(Tavelo Deskrig macOS native CLI

Usage:
  TaveloDeskrig --check --no-gui
  TaveloDeskrig --preset minimal --yes --no-gui

Options:
  --check                 Run system checks and generate the local audit report.
  --preset VALUE          Install a preset: minimal, standard or full.
  --yes, -y               Do not prompt before install.
  --no-shortcuts          Skip .webloc shortcut items.
  --no-mime-defaults      Skip ONLYOFFICE default app assignment.
  --no-gui                Keep CLI/headless route.
)");

/// The preset's items before any clean-up; none for an unknown name.
QList<AppItem> items(const QString &preset)
{
    const auto isWanted = [&](const AppItem &item) {
        if (preset == u"full")
            return true;
        if (preset == u"minimal")
            return item.belongsTo(QStringLiteral("office"));
        return preset == u"standard" && Catalog::isStandard(item);
    };
    QList<AppItem> wanted;
    std::copy_if(Catalog::items().cbegin(), Catalog::items().cend(), std::back_inserter(wanted), isWanted);
    return wanted;
}

bool isPreset(const QString &name)
{
    return name == u"minimal" || name == u"standard" || name == u"full";
}

QList<AppItem> plan(const QString &preset, const Options &options)
{
    const auto dropKind = [](QList<AppItem> &list, AppKind kind) {
        list.removeIf([kind](const AppItem &item) { return item.kind == kind; });
    };
    QList<AppItem> list = items(preset);
    dropKind(list, AppKind::blocked);
    list = Catalog::uniqueInstallItems(list);
    if (options.noShortcuts)
        dropKind(list, AppKind::shortcut);
    if (options.noMimeDefaults)
        dropKind(list, AppKind::mime);
    return list;
}

/// One run behind the options: the backend, and the terminal that its lines and the run's own share in the order of
/// events.
class Run
{
public:
    explicit Run(const PlatformServices &services)
        : m_services(services),
          m_backend(
              services, [console = services.console](const QString &line) { console->write(line + u'\n'); },
              [](const InstallProgressUpdate &) {})
    {
    }

    /// Shows what the backend has still queued.
    ~Run() { m_services.mainQueue->service(); }
    Q_DISABLE_COPY_MOVE(Run)

    int check()
    {
        const QList<SystemCheck> checks = m_backend.systemChecks();
        m_backend.log(QStringLiteral("System check summary:"));
        for (const SystemCheck &check : checks)
            m_backend.log(logLine(check));
        printChecks(checks);

        FileError error;
        const std::optional<QString> report =
            m_backend.writeReport(checks, std::nullopt, AppLanguage::vietnamese, &error);
        if (!report) {
            m_services.console->writeError(QStringLiteral("Không thể tạo report: ") + error.text + u'\n');
            return failed;
        }
        print(QStringLiteral("Report: ") + *report + u'\n');
        return succeeded;
    }

    int installPreset(const QString &preset, const Options &options)
    {
        const QList<AppItem> list = plan(preset, options);
        const QStringList blockers = m_backend.installBlockers(list);
        if (!blockers.isEmpty()) {
            for (const QString &blocker : blockers)
                m_services.console->writeError(QStringLiteral("BLOCK: ") + blocker + u'\n');
            return failed;
        }

        print(QStringLiteral("Kế hoạch cài đặt:\n"));
        for (const AppItem &item : list)
            print(QStringLiteral("- ") + item.macName + QStringLiteral(" (") + rawValue(item.kind) +
                  QStringLiteral(")\n"));
        print(QStringLiteral("Log: ") + m_backend.runtime().logFile() + u'\n');
        if (!options.yes && !isConfirmed()) {
            print(QStringLiteral("Đã hủy.\n"));
            return notConfirmed;
        }

        const auto installed =
            std::count_if(list.cbegin(), list.cend(), [&](const AppItem &item) { return m_backend.install(item); });
        const auto missed = list.size() - installed;
        print(QStringLiteral("Hoàn tất: %1 thành công, %2 lỗi.\n").arg(installed).arg(missed));
        return missed == 0 ? succeeded : failed;
    }

private:
    void printChecks(const QList<SystemCheck> &checks)
    {
        print(QStringLiteral("\nKết quả kiểm tra hệ thống:\n"));
        for (const SystemCheck &check : checks)
            print(printedColumn(levelWord(check.level), 5) + u' ' + printedColumn(check.name, 28) + u' ' +
                  check.detail + u'\n');
        print(QStringLiteral("\n"));
    }

    bool isConfirmed()
    {
        print(QStringLiteral("Tiếp tục? [y/N] "));
        const QString answer = m_services.console->readLine().value_or(QString()).trimmed().toLower();
        return answer == u"y" || answer == u"yes";
    }

    void print(const QString &text)
    {
        m_services.mainQueue->service(); // lines of the backend that came before
        m_services.console->write(text);
    }

    PlatformServices m_services;
    MacBackend m_backend;
};

} // namespace

bool shouldRun(const QStringList &arguments)
{
    const QStringList own = arguments.mid(1);
    const auto has = [&](const char16_t *word) { return own.contains(QStringView(word)); };
    return has(u"--no-gui") || has(u"--check") || has(u"--preset") ||
           std::any_of(own.cbegin(), own.cend(), [](const QString &each) { return each.startsWith(presetPrefix); }) ||
           has(u"--help") || has(u"-h");
}

Options parse(const QStringList &arguments)
{
    Options options;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString &argument = arguments.at(index);
        if (argument == u"--check")
            options.check = true;
        else if (argument == u"--no-gui")
            options.noGUI = true;
        else if (argument == u"--yes" || argument == u"-y")
            options.yes = true;
        else if (argument == u"--no-shortcuts")
            options.noShortcuts = true;
        else if (argument == u"--no-mime-defaults")
            options.noMimeDefaults = true;
        else if (argument == u"--help" || argument == u"-h")
            options.help = true;
        else if (argument == u"--preset" && index + 1 < arguments.size())
            options.preset = arguments.at(++index);
        else if (argument.startsWith(presetPrefix))
            options.preset = argument.mid(presetPrefix.size());
    }
    return options;
}

int run(const QStringList &arguments)
{
    const Options options = parse(arguments.mid(1));
    const Console console;
    if (options.help) {
        console.write(usage);
        return succeeded;
    }
    const QString preset = options.preset.value_or(QString()).toLower();
    if (!options.check) {
        if (!options.preset) {
            console.writeError(
                QStringLiteral("CLI cần --preset minimal|standard|full hoặc --check. Bỏ --no-gui để mở app GUI.\n"));
            return wrongUsage;
        }
        if (!isPreset(preset)) {
            console.writeError(QStringLiteral("Preset không hợp lệ. Dùng minimal, standard hoặc full.\n"));
            return wrongUsage;
        }
    }

    const CommandLineApplication application;
    Run session(PlatformServices::make());
    return options.check ? session.check() : session.installPreset(preset, options);
}

} // namespace Tavelo::TaveloCLI

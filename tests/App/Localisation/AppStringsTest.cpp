#include "AppStrings.h"

#include "Catalog.h"
#include "Golden.h"
#include "InstalledMacApplication.h"
#include "ItemTextTables.h"
#include "ItemTexts.h"
#include "Workshop.h"

#include <QRegularExpression>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

#define TEXT(call)                                                                                                     \
    std::pair                                                                                                          \
    {                                                                                                                  \
        u"" #call ""_s, strings.call                                                                                   \
    }

using Samples = QList<std::pair<QString, QString>>;

/// Every text of the interface in that language by its name, filled with sample arguments.
Samples samples(const AppStrings &strings)
{
    using State = AppLicenseEvidenceState;
    const QString app = u"Slack %2"_s; // which must not be filled again
    const QString house = u"/Applications/House.app"_s;
    const QString preset = u"set %1"_s;
    const QString version = u"9.8"_s;
    constexpr qsizetype few = 7, many = 28, none = 13;
    Samples samples;
    const auto add = [&samples](const auto &...texts) { (samples.append(texts), ...); };
    for (const auto &row : appI18n())
        samples.emplace_back(row.name.toString(), strings.text(row.key));
    for (const auto &row : screenTexts())
        samples.emplace_back(u"screen "_s + row.name.toString(), strings.text(row.key));
    for (const QString &name : {u"macOS compatibility"_s, u"CPU architecture"_s, u"Internet connection"_s,
                                u"Dung lượng trống"_s, u"user mode"_s})
        samples.emplace_back(u"systemCheckName "_s + name, strings.systemCheckName(name));
    for (const QString &group : {u"all"_s, u"office"_s, u"microsoft"_s, u"printer"_s, u"meeting"_s, u"media"_s})
        samples.emplace_back(u"groupLabel "_s + group, strings.groupLabel(group));
    for (const QString &status : {u"valid"_s, u"invalid"_s, u"unsigned"_s, u"ad-hoc"_s, u"not-applicable"_s})
        samples.emplace_back(u"auditSignatureStatusLabel "_s + status, strings.auditSignatureStatusLabel(status));
    for (int place = 0; place <= static_cast<int>(State::explicitUnlicensed); ++place)
        samples.emplace_back(u"auditLicenseEvidenceLabel "_s + rawValue(State(place)),
                             strings.auditLicenseEvidenceLabel(State(place)));
    for (const auto confidence : allLicenseEvidenceConfidences())
        samples.emplace_back(u"auditLicenseConfidenceValue "_s + rawValue(confidence),
                             strings.auditLicenseConfidenceValue(confidence));
    for (const AppKind kind : {AppKind::direct, AppKind::formula, AppKind::cask, AppKind::bundle, AppKind::shortcut,
                               AppKind::builtin, AppKind::mime, AppKind::blocked})
        samples.emplace_back(u"sourceLabel "_s + rawValue(kind), strings.sourceLabel(anItem(kind)));
    add(TEXT(settingsSubtitle()), TEXT(languageSettingDetail()), TEXT(reportTitle()), TEXT(reportDescription()),
        TEXT(copiedReportPath()), TEXT(systemChecksDescription()), TEXT(systemTitle()), TEXT(checkingInstalledStatus()),
        TEXT(itemUnsupportedToast()), TEXT(writingReport()), TEXT(copiedLogPath()), TEXT(systemReadyDetail()),
        TEXT(statusRefreshed()), TEXT(auditSubtitle()), TEXT(auditPreparing()), TEXT(auditNoDataTitle()),
        TEXT(auditNoDataDetail()), TEXT(auditLicenseLabel()), TEXT(auditLicenseSourceLabel()),
        TEXT(auditLicenseDetailLabel()), TEXT(auditLicenseConfidenceLabel()), TEXT(auditLicenseSignalsLabel()),
        TEXT(auditLicenseNotice()), TEXT(auditEvidenceNotice()), TEXT(auditDeveloperLabel()),
        TEXT(auditSignatureLabel()), TEXT(auditSidebarSummaryTitle()), TEXT(updateRequiredMessage()),
        TEXT(updateRequiredStatus()), TEXT(updateRequiredToast()), TEXT(updateDownloadUnavailable()),
        TEXT(openingUpdateDownload()), TEXT(openedHomebrewGuide()), TEXT(copiedHomebrewInstallCommand()),
        TEXT(copiedHomebrewCommand()), TEXT(syncingCatalog()), TEXT(uploadingReport()), TEXT(cloudActionFinished()),
        TEXT(cloudActionFailed()));
    add(TEXT(removePromptMessage(app)), TEXT(processing(app)), TEXT(opening(app)), TEXT(removing(app)),
        TEXT(preparingRemove(app)), TEXT(preparingInstall(app)), TEXT(finished(app)), TEXT(failedToProcess(app)),
        TEXT(failedItem(app)), TEXT(opened(app)), TEXT(couldNotOpen(app)), TEXT(removed(app)),
        TEXT(failedToRemove(app)), TEXT(removeFailed(app)), TEXT(installing(app)), TEXT(processedItem(app)),
        TEXT(processed(app)));
    add(TEXT(auditScanProgress(few, many, 25)), TEXT(auditUpdatingCatalog(many)), TEXT(auditComplete(many)),
        TEXT(auditSummary(48, few, many, none)), TEXT(auditSidebarSummaryDetail(many)),
        TEXT(updateRequiredMessageWithVersion(version)), TEXT(updateAvailableToast(version)),
        TEXT(updateAvailableToast({})));
    add(TEXT(systemCheckDetail(u"Homebrew"_s, u"Chưa tìm thấy brew. Cài từ https://brew.sh"_s)),
        TEXT(systemCheckDetail(u"user mode"_s, u"Không nên chạy Homebrew GUI app bằng root."_s)),
        TEXT(systemCheckDetail(u"Dung lượng trống"_s, u"42GB trống trên /."_s)),
        TEXT(systemCheckDetail(u"Xcode Command Line Tools"_s, u"Đã có xcode-select."_s)),
        TEXT(systemCheckDetail(u"Xcode Command Line Tools"_s, u"Không bắt buộc để mở app."_s)),
        TEXT(systemCheckDetail(u"Internet connection"_s, u"Có thể phân giải formulae.brew.sh."_s)),
        TEXT(systemCheckDetail(u"Internet connection"_s, u"Không phân giải được formulae.brew.sh."_s)),
        TEXT(systemCheckDetail(u"macOS compatibility"_s, u"macOS 11.0.0 quá cũ. Target tối thiểu: macOS 13."_s)),
        TEXT(systemCheckDetail(u"macOS compatibility"_s,
                               u"macOS 12.7.0 legacy. Homebrew/app cask có thể thiếu package."_s)),
        TEXT(systemCheckDetail(u"LibreOffice"_s, u"Đã cài."_s)),
        TEXT(systemCheckDetail(u"ONLYOFFICE"_s, u"Chưa cài."_s)));
    add(TEXT(statusText(InstallStatus::missing)), TEXT(statusText(InstallStatus::installed)),
        TEXT(statusText(InstallStatus::working)), TEXT(statusText(InstallStatus::working, u"45%"_s)),
        TEXT(statusText(InstallStatus::failed)), TEXT(statusText(InstallStatus::blocked)),
        TEXT(primaryActionLabel(InstallStatus::missing, anItem(AppKind::cask))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::shortcut))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::builtin))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::formula))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::mime, {}, house))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::formula, {}, house))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::cask, {}, house))),
        TEXT(primaryActionLabel(InstallStatus::installed, anItem(AppKind::direct, {}, house))),
        TEXT(primaryActionLabel(InstallStatus::working, anItem(AppKind::cask))),
        TEXT(primaryActionLabel(InstallStatus::failed, anItem(AppKind::cask))),
        TEXT(primaryActionLabel(InstallStatus::blocked, anItem(AppKind::blocked))));
    add(TEXT(packageSummary({u"p7zip"_s, u"keka"_s})), TEXT(summary(few, many)), TEXT(operationSummary(few, many)),
        TEXT(itemDescription(catalogItem(u"slack"_s))), TEXT(itemReplacementNote(catalogItem(u"rclone"_s))),
        TEXT(itemName(catalogItem(u"deja-dup"_s))), TEXT(itemName(catalogItem(u"rclone"_s))),
        TEXT(itemName(anItem(AppKind::cask))), TEXT(setupNeeded({u"Homebrew"_s, u"Dung lượng trống"_s})),
        TEXT(installingPreset(preset, many)), TEXT(preparingPreset(preset)),
        TEXT(finishedPresetSummary(preset, few, none)), TEXT(finishedPreset(preset)), TEXT(presetFailures(few)));
    return samples;
}

} // namespace

class AppStringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatWasReviewed()
    {
        QStringList entries;
        for (const AppLanguage language : AppLanguages::supported()) {
            const Samples texts = samples(AppStrings(language));
            for (qsizetype place = 0; place < texts.size(); ++place) {
                const auto &[name, text] = texts.at(place);
                if (place == entries.size())
                    entries.append(name + u'\n');
                entries[place] += u"  %1 %2\n"_s.arg(rawValue(language), text);
            }
        }
        const QByteArray differences = differencesFromGolden(u"app-strings.txt"_s, entries.join(u'\n').toUtf8());
        QVERIFY2(differences.isEmpty(), differences);
    }

    void itemsSayWhatWasReviewed()
    {
        QString lines;
        for (const AppItem &item : Catalog::items()) {
            for (const AppLanguage language : AppLanguages::supported())
                lines += u"%1 %2 | %3 | %4\n"_s.arg(item.id, rawValue(language), itemDescription(item, language),
                                                    itemReplacementNote(item, language));
        }
        const QByteArray differences = differencesFromGolden(u"item-texts.txt"_s, lines.toUtf8());
        QVERIFY2(differences.isEmpty(), differences);
    }

    /// Names, and messages that are English in all languages but Vietnamese.
    void onlyTheseAreInAnotherScript()
    {
        for (const auto &[language, script] :
             {std::pair(AppLanguage::korean, u"\\p{Hangul}"_s), std::pair(AppLanguage::chinese, u"\\p{Han}"_s),
              std::pair(AppLanguage::japanese, u"[\\p{Hiragana}\\p{Katakana}\\p{Han}]"_s)}) {
            QStringList foreign;
            for (const auto &[name, text] : samples(AppStrings(language))) {
                if (!text.contains(QRegularExpression(script)))
                    foreign.append(name);
            }
            QCOMPARE(foreign.join(u", "),
                     u"groupOffice, groupMicrosoft, screen pdfExported, screen scanBeforeExport, screen fillInProfile, "
                     "screen loadingBusinessConfig, screen syncingWorkspace, screen savingBranding, "
                     "screen savingProfile, screen taveloCounter, groupLabel office, groupLabel microsoft, "
                     "sourceLabel formula, sourceLabel cask, sourceLabel bundle, itemName(anItem(AppKind::cask))"_s);
        }
    }

    void missingTextReadsInEnglish()
    {
        const auto shown = [](QStringView korean, QStringView english) {
            const Texts texts{.english = english, .vietnamese = {}, .korean = korean, .japanese = {}, .chinese = {}};
            return KeyedTexts<AppI18nKey>{AppI18nKey::log, u"log", texts}.in(AppLanguage::korean);
        };
        QCOMPARE(shown(u"로그", u"Log"), u"로그"_s);
        QCOMPARE(shown({}, u"Log"), u"Log"_s);
        QCOMPARE(shown({}, {}), u"log"_s);
        const ItemTranslations item{.english = u"Chat"_s, .korean = u"채팅"_s, .japanese = {}, .chinese = {}};
        QCOMPARE(item.in(AppLanguage::korean), u"채팅"_s);
        QCOMPARE(item.in(AppLanguage::japanese), u"Chat"_s);
        QCOMPARE(item.in(AppLanguage::chinese), u"Chat"_s);
        QCOMPARE(item.in(AppLanguage::vietnamese), QString());
    }

    void unrecognisedCheckStaysAsItCame()
    {
        const AppStrings japanese(AppLanguage::japanese);
        const QString notFound = u"Chưa tìm thấy brew."_s; // known to another check
        for (const auto &[name, detail] :
             {std::pair(u"Homebrew"_s, u"/opt/homebrew/bin/brew"_s), std::pair(u"Homebrew"_s, u"/Đã cài./brew"_s),
              std::pair(u"CPU architecture"_s, u"arm64"_s), std::pair(u"user mode"_s, notFound),
              std::pair(u"Dung lượng trống"_s, u"Không rõ."_s), std::pair(u"Camera"_s, u"Không rõ."_s)})
            QCOMPARE(japanese.systemCheckDetail(name, detail), detail);
        QCOMPARE(japanese.systemCheckDetail(u"user mode"_s, u"User: %1"_s), u"ユーザ: %1"_s);
        QCOMPARE(AppStrings(AppLanguage::vietnamese).systemCheckDetail(u"Homebrew"_s, notFound), notFound);
        QCOMPARE(japanese.systemCheckName(u"Camera"_s), u"Camera"_s);
    }
};

QTEST_APPLESS_MAIN(AppStringsTest)

#include "AppStringsTest.moc"

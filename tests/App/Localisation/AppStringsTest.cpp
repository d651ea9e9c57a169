#include "AppStrings.h"

#include "Catalog.h"
#include "Golden.h"
#include "InstalledMacApplication.h"
#include "ItemTextTables.h"
#include "ItemTexts.h"
#include "UserDefaults.h"
#include "Workshop.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

// A member function of the texts beside its name.
#define OF(member)                                                                                                     \
    std::pair                                                                                                          \
    {                                                                                                                  \
        u"" #member ""_s, &AppStrings::member                                                                          \
    }

#define SAMPLE(call)                                                                                                   \
    {                                                                                                                  \
        u"" #call ""_s, strings.call                                                                                   \
    }

using Samples = QList<std::pair<QString, QString>>;

/// Every text of the interface in that language by its name, filled with sample arguments.
Samples samples(const AppStrings &strings)
{
    using State = AppLicenseEvidenceState;
    const QString app = u"Slack %2"_s; // which must not be filled again
    const QString preset = u"set %1"_s;
    const QString version = u"9.8"_s;
    constexpr qsizetype few = 7, many = 28, none = 13;
    Samples samples;
    const auto plain = [&](const auto &...pairs) {
        (samples.emplace_back(pairs.first, (strings.*pairs.second)()), ...);
    };
    const auto aboutAnItem = [&](const auto &...pairs) {
        (samples.emplace_back(pairs.first, (strings.*pairs.second)(app)), ...);
    };
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
    plain(OF(settingsSubtitle), OF(languageSettingDetail), OF(reportTitle), OF(reportDescription), OF(copiedReportPath),
          OF(systemChecksDescription), OF(systemTitle), OF(checkingInstalledStatus), OF(itemUnsupportedToast),
          OF(writingReport), OF(copiedLogPath), OF(systemReadyDetail), OF(statusRefreshed), OF(auditSubtitle),
          OF(auditPreparing), OF(auditNoDataTitle), OF(auditNoDataDetail), OF(auditLicenseLabel),
          OF(auditLicenseSourceLabel), OF(auditLicenseDetailLabel), OF(auditLicenseConfidenceLabel),
          OF(auditLicenseSignalsLabel), OF(auditLicenseNotice), OF(auditEvidenceNotice), OF(auditDeveloperLabel),
          OF(auditSignatureLabel), OF(auditSidebarSummaryTitle), OF(updateRequiredMessage), OF(updateRequiredStatus),
          OF(updateRequiredToast), OF(updateDownloadUnavailable), OF(openingUpdateDownload), OF(openedHomebrewGuide),
          OF(copiedHomebrewInstallCommand), OF(copiedHomebrewCommand), OF(syncingCatalog), OF(uploadingReport),
          OF(cloudActionFinished), OF(cloudActionFailed));
    aboutAnItem(OF(removePromptMessage), OF(processing), OF(opening), OF(removing), OF(preparingRemove),
                OF(preparingInstall), OF(finished), OF(failedToProcess), OF(failedItem), OF(opened), OF(couldNotOpen),
                OF(removed), OF(failedToRemove), OF(removeFailed), OF(installing), OF(processedItem), OF(processed));
    samples +=
        {SAMPLE(auditScanProgress(few, many, 25)),
         SAMPLE(auditUpdatingCatalog(many)),
         SAMPLE(auditComplete(many)),
         SAMPLE(auditSummary(48, few, many, none)),
         SAMPLE(auditSidebarSummaryDetail(many)),
         SAMPLE(updateRequiredMessageWithVersion(version)),
         SAMPLE(updateAvailableToast(version)),
         SAMPLE(updateAvailableToast({})),
         SAMPLE(systemCheckDetail(u"Homebrew"_s, u"Chưa tìm thấy brew. Cài từ https://brew.sh"_s)),
         SAMPLE(systemCheckDetail(u"user mode"_s, u"Không nên chạy Homebrew GUI app bằng root."_s)),
         SAMPLE(systemCheckDetail(u"Dung lượng trống"_s, u"42GB trống trên /."_s)),
         SAMPLE(systemCheckDetail(u"Xcode Command Line Tools"_s, u"Đã có xcode-select."_s)),
         SAMPLE(systemCheckDetail(u"Xcode Command Line Tools"_s, u"Không bắt buộc để mở app."_s)),
         SAMPLE(systemCheckDetail(u"Internet connection"_s, u"Có thể phân giải formulae.brew.sh."_s)),
         SAMPLE(systemCheckDetail(u"Internet connection"_s, u"Không phân giải được formulae.brew.sh."_s)),
         SAMPLE(systemCheckDetail(u"macOS compatibility"_s, u"macOS 11.0.0 quá cũ. Target tối thiểu: macOS 13."_s)),
         SAMPLE(systemCheckDetail(u"macOS compatibility"_s,
                                  u"macOS 12.7.0 legacy. Homebrew/app cask có thể thiếu package."_s)),
         SAMPLE(systemCheckDetail(u"LibreOffice"_s, u"Đã cài."_s)),
         SAMPLE(systemCheckDetail(u"ONLYOFFICE"_s, u"Chưa cài."_s)),
         SAMPLE(statusText(InstallStatus::missing)),
         SAMPLE(statusText(InstallStatus::installed)),
         SAMPLE(statusText(InstallStatus::working)),
         SAMPLE(statusText(InstallStatus::working, u"45%"_s)),
         SAMPLE(statusText(InstallStatus::failed)),
         SAMPLE(statusText(InstallStatus::blocked)),
         SAMPLE(primaryActionLabel(InstallStatus::missing, anItem(AppKind::cask))),
         SAMPLE(primaryActionLabel(InstallStatus::installed, anItem(AppKind::shortcut))),
         SAMPLE(primaryActionLabel(InstallStatus::installed, anItem(AppKind::mime))),
         SAMPLE(primaryActionLabel(InstallStatus::working, anItem(AppKind::cask))),
         SAMPLE(primaryActionLabel(InstallStatus::failed, anItem(AppKind::cask))),
         SAMPLE(primaryActionLabel(InstallStatus::blocked, anItem(AppKind::blocked))),
         SAMPLE(packageSummary({u"p7zip"_s, u"keka"_s})),
         SAMPLE(summary(few, many)),
         SAMPLE(operationSummary(few, many)),
         SAMPLE(itemDescription(catalogItem(u"slack"_s))),
         SAMPLE(itemReplacementNote(catalogItem(u"rclone"_s))),
         SAMPLE(itemName(catalogItem(u"deja-dup"_s))),
         SAMPLE(itemName(catalogItem(u"rclone"_s))),
         SAMPLE(itemName(anItem(AppKind::cask))),
         SAMPLE(setupNeeded({u"Homebrew"_s, u"Dung lượng trống"_s})),
         SAMPLE(installingPreset(preset, many)),
         SAMPLE(preparingPreset(preset)),
         SAMPLE(finishedPresetSummary(preset, few, none)),
         SAMPLE(finishedPreset(preset)),
         SAMPLE(presetFailures(few))};
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
    void onlyTheseAreNotTranslated()
    {
        const Samples english = samples(AppStrings(AppLanguage::english));
        for (const auto language : {AppLanguage::korean, AppLanguage::japanese, AppLanguage::chinese}) {
            const Samples foreign = samples(AppStrings(language));
            QStringList same;
            for (qsizetype place = 0; place < english.size(); ++place) {
                if (foreign.at(place) == english.at(place))
                    same.append(english.at(place).first);
            }
            QCOMPARE(same.join(u", "),
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

    void buttonPromisesWhatItDoes()
    {
        const auto label = [](AppKind kind, const QString &appPaths = {}) {
            return AppStrings(AppLanguage::english)
                .primaryActionLabel(InstallStatus::installed, anItem(kind, {}, appPaths));
        };
        const QString app = u"/Applications/House.app"_s;
        QCOMPARE(label(AppKind::builtin), u"Open"_s);
        QCOMPARE(label(AppKind::mime, app), u"Details"_s);
        QCOMPARE(label(AppKind::formula), u"Details"_s);
        for (const AppKind kind : {AppKind::formula, AppKind::cask, AppKind::bundle, AppKind::direct})
            QCOMPARE(label(kind, app), u"Open"_s);
    }

    void storedLanguage()
    {
        const PlatformServices services = m_mac.services();
        QCOMPARE(AppLanguages::storedDefault(*services.defaults), AppLanguage::english);
        for (const auto &[stored, language] :
             {std::pair(u"fr"_s, AppLanguage::english), std::pair(u"VI"_s, AppLanguage::english),
              std::pair(u"vi"_s, AppLanguage::vietnamese), std::pair(u"zh"_s, AppLanguage::chinese)}) {
            QVERIFY(services.defaults->setText(u"tavelo.uiLanguage"_s, stored));
            QCOMPARE(AppLanguages::storedDefault(*services.defaults), language);
        }
    }

private:
    const TemporaryMac m_mac;
};

QTEST_APPLESS_MAIN(AppStringsTest)

#include "AppStringsTest.moc"

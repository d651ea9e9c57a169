#include "AppStrings.h"

#include "Golden.h"
#include "InstalledMacApplication.h"
#include "Row.h"
#include "UserDefaults.h"
#include "Workshop.h"

#include <QSet>

#include <algorithm>
#include <functional>
#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// One text of the interface, filled with sample arguments.
struct Sample {
    QString name;
    std::function<QString(const AppStrings &)> text;
    QStringList arguments = {}; ///< They stand in the text, whatever the language.
};

#define SAMPLE(call, ...)                                                                                              \
    Sample                                                                                                             \
    {                                                                                                                  \
        u"" #call ""_s, [](const AppStrings &strings) { return strings.call; },                                        \
        {                                                                                                              \
            __VA_ARGS__                                                                                                \
        }                                                                                                              \
    }

// A member function of the texts beside its name.
#define OF(member)                                                                                                     \
    std::pair                                                                                                          \
    {                                                                                                                  \
        u"" #member ""_s, &AppStrings::member                                                                          \
    }

const QString app = u"Slack %2"_s; // which must not be filled again
const QString preset = u"set %1"_s;
const QString version = u"9.8"_s;
constexpr qsizetype few = 7, many = 28, none = 13;

QString asText(const QString &value)
{
    return value;
}

template <typename Value>
QString asText(Value value)
{
    return rawValue(value);
}

/// A sample for each of the values.
template <typename Value>
QList<Sample> each(const QString &name, QString (AppStrings::*text)(Value) const,
                   const QList<std::decay_t<Value>> &values)
{
    QList<Sample> samples;
    for (const auto &value : values)
        samples.append({name + u' ' + asText(value), [=](const AppStrings &s) { return (s.*text)(value); }});
    return samples;
}

/// A sample of each text without arguments.
template <typename... Pairs>
QList<Sample> plain(const Pairs &...pairs)
{
    return {{pairs.first, [=](const AppStrings &s) { return (s.*pairs.second)(); }}...};
}

/// A sample of each text about an item.
template <typename... Pairs>
QList<Sample> aboutAnItem(const Pairs &...pairs)
{
    return {{pairs.first, [=](const AppStrings &s) { return (s.*pairs.second)(app); }, {app}}...};
}

QList<Sample> samples()
{
    using State = AppLicenseEvidenceState;
    QList<Sample> samples;
    for (const auto &row : appI18n())
        samples.append({row.name.toString(), [key = row.key](const AppStrings &s) { return s.text(key); }});
    for (const auto &row : screenTexts())
        samples.append(
            {u"screen "_s + row.name.toString(), [key = row.key](const AppStrings &s) { return s.text(key); }});
    samples += each(u"systemCheckName"_s, &AppStrings::systemCheckName,
                    {u"macOS compatibility"_s, u"CPU architecture"_s, u"Internet connection"_s, u"Dung lượng trống"_s,
                     u"user mode"_s});
    samples += each(u"groupLabel"_s, &AppStrings::groupLabel,
                    {u"all"_s, u"office"_s, u"microsoft"_s, u"printer"_s, u"meeting"_s, u"media"_s});
    samples += each(u"auditSignatureStatusLabel"_s, &AppStrings::auditSignatureStatusLabel,
                    {u"valid"_s, u"invalid"_s, u"unsigned"_s, u"ad-hoc"_s, u"not-applicable"_s});
    samples +=
        each(u"auditLicenseEvidenceLabel"_s, &AppStrings::auditLicenseEvidenceLabel,
             {State::verifiedReceipt, State::receiptIntegrityVerified, State::acquisitionReceipt,
              State::licenseArtifact, State::accountBased, State::freeOrOpenSource, State::installationEvidence,
              State::needsEntitlementReview, State::accessRestricted, State::noEvidence, State::explicitUnlicensed});
    samples += each(u"auditLicenseConfidenceValue"_s, &AppStrings::auditLicenseConfidenceValue,
                    allLicenseEvidenceConfidences());
    for (const AppKind kind : {AppKind::direct, AppKind::formula, AppKind::cask, AppKind::bundle, AppKind::shortcut,
                               AppKind::builtin, AppKind::mime, AppKind::blocked})
        samples.append(
            {u"sourceLabel "_s + rawValue(kind), [kind](const AppStrings &s) { return s.sourceLabel(anItem(kind)); }});
    samples += plain(OF(settingsSubtitle), OF(languageSettingDetail), OF(reportTitle), OF(reportDescription),
                     OF(copiedReportPath), OF(systemChecksDescription), OF(systemTitle), OF(checkingInstalledStatus),
                     OF(itemUnsupportedToast), OF(writingReport), OF(copiedLogPath), OF(systemReadyDetail),
                     OF(statusRefreshed), OF(auditSubtitle), OF(auditPreparing), OF(auditNoDataTitle),
                     OF(auditNoDataDetail), OF(auditLicenseLabel), OF(auditLicenseSourceLabel),
                     OF(auditLicenseDetailLabel), OF(auditLicenseConfidenceLabel), OF(auditLicenseSignalsLabel),
                     OF(auditLicenseNotice), OF(auditEvidenceNotice), OF(auditDeveloperLabel), OF(auditSignatureLabel),
                     OF(auditSidebarSummaryTitle), OF(updateRequiredMessage), OF(updateRequiredStatus),
                     OF(updateRequiredToast), OF(updateDownloadUnavailable), OF(openingUpdateDownload),
                     OF(openedHomebrewGuide), OF(copiedHomebrewInstallCommand), OF(copiedHomebrewCommand),
                     OF(syncingCatalog), OF(uploadingReport), OF(cloudActionFinished), OF(cloudActionFailed));
    samples += aboutAnItem(OF(removePromptMessage), OF(processing), OF(opening), OF(removing), OF(preparingRemove),
                           OF(preparingInstall), OF(finished), OF(failedToProcess), OF(failedItem), OF(opened),
                           OF(couldNotOpen), OF(removed), OF(failedToRemove), OF(removeFailed), OF(installing),
                           OF(processedItem), OF(processed));
    samples += {
        SAMPLE(auditScanProgress(few, many, 25), u"7/28"_s, u"25%"_s),
        SAMPLE(auditUpdatingCatalog(many), u"28"_s),
        SAMPLE(auditComplete(many), u"28"_s),
        SAMPLE(auditSummary(48, few, many, none), u"7"_s, u"28"_s, u"13"_s),
        SAMPLE(auditSidebarSummaryDetail(many), u"28"_s),
        SAMPLE(updateRequiredMessageWithVersion(version), version),
        SAMPLE(updateAvailableToast(version), version),
        SAMPLE(updateAvailableToast({})),
        SAMPLE(systemCheckDetail(u"Homebrew"_s, u"Chưa tìm thấy brew. Cài từ https://brew.sh"_s), u"https://brew.sh"_s),
        SAMPLE(systemCheckDetail(u"user mode"_s, u"Không nên chạy Homebrew GUI app bằng root."_s), u"root"_s),
        SAMPLE(systemCheckDetail(u"Dung lượng trống"_s, u"42GB trống trên /."_s), u"42GB"_s, u"/"_s),
        SAMPLE(systemCheckDetail(u"Xcode Command Line Tools"_s, u"Đã có xcode-select."_s), u"xcode-select"_s),
        SAMPLE(systemCheckDetail(u"Xcode Command Line Tools"_s, u"Không bắt buộc để mở app."_s)),
        SAMPLE(systemCheckDetail(u"Internet connection"_s, u"Có thể phân giải formulae.brew.sh."_s),
               u"formulae.brew.sh"_s),
        SAMPLE(systemCheckDetail(u"Internet connection"_s, u"Không phân giải được formulae.brew.sh."_s),
               u"formulae.brew.sh"_s),
        SAMPLE(systemCheckDetail(u"macOS compatibility"_s, u"macOS 11.0.0 quá cũ. Target tối thiểu: macOS 13."_s),
               u"macOS 11.0.0 "_s, u": macOS 13."_s),
        SAMPLE(systemCheckDetail(u"macOS compatibility"_s,
                                 u"macOS 12.7.0 legacy. Homebrew/app cask có thể thiếu package."_s),
               u"macOS 12.7.0 legacy. Homebrew/app cask "_s),
        SAMPLE(systemCheckDetail(u"LibreOffice"_s, u"Đã cài."_s)),
        SAMPLE(systemCheckDetail(u"ONLYOFFICE"_s, u"Chưa cài."_s)),
        SAMPLE(statusText(InstallStatus::missing)),
        SAMPLE(statusText(InstallStatus::installed)),
        SAMPLE(statusText(InstallStatus::working)),
        SAMPLE(statusText(InstallStatus::working, u"45%"_s), u"45%"_s),
        SAMPLE(statusText(InstallStatus::failed)),
        SAMPLE(statusText(InstallStatus::blocked)),
        SAMPLE(primaryActionLabel(InstallStatus::missing, anItem(AppKind::cask))),
        SAMPLE(primaryActionLabel(InstallStatus::installed, anItem(AppKind::shortcut))),
        SAMPLE(primaryActionLabel(InstallStatus::installed, anItem(AppKind::mime))),
        SAMPLE(primaryActionLabel(InstallStatus::working, anItem(AppKind::cask))),
        SAMPLE(primaryActionLabel(InstallStatus::failed, anItem(AppKind::cask))),
        SAMPLE(primaryActionLabel(InstallStatus::blocked, anItem(AppKind::blocked))),
        SAMPLE(packageSummary({u"p7zip"_s, u"keka"_s}), u"2"_s),
        SAMPLE(summary(few, many), u"7/28"_s),
        SAMPLE(operationSummary(few, many), u"7/28"_s),
        SAMPLE(itemDescription(catalogItem(u"slack"_s))),
        SAMPLE(itemReplacementNote(catalogItem(u"rclone"_s))),
        SAMPLE(itemName(catalogItem(u"deja-dup"_s))),
        SAMPLE(itemName(catalogItem(u"rclone"_s))),
        SAMPLE(itemName(anItem(AppKind::cask)), u"Item"_s),
        SAMPLE(setupNeeded({u"Homebrew"_s, u"Dung lượng trống"_s}), u"Homebrew, "_s),
        SAMPLE(installingPreset(preset, many), preset, u"28"_s),
        SAMPLE(preparingPreset(preset), preset),
        SAMPLE(finishedPresetSummary(preset, few, none), preset, u"7"_s, u"13"_s),
        SAMPLE(finishedPreset(preset), preset),
        SAMPLE(presetFailures(few), u"7"_s)};
    return samples;
}

/// Whether the text is written as that language is, which no two of the five share. Words of another script may stand
/// between its own.
bool isWrittenIn(AppLanguage language, const QString &text)
{
    constexpr int longestLabel = 6; // in characters that Japanese may string together without a syllable sign
    const auto count = [&text](auto... scripts) {
        return std::count_if(text.begin(), text.end(), [=](QChar c) { return ((c.script() == scripts) || ...); });
    };
    const auto hangul = count(QChar::Script_Hangul), han = count(QChar::Script_Han);
    const auto kana = count(QChar::Script_Hiragana, QChar::Script_Katakana);
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c < u'\x7f' || !c.isLetter(); });
    switch (language) {
    case AppLanguage::english:
        return plain && !text.isEmpty();
    case AppLanguage::vietnamese:
        return !plain && hangul + kana + han == 0;
    case AppLanguage::korean:
        return hangul > 0 && kana == 0;
    case AppLanguage::japanese:
        return hangul == 0 && (kana > 0 || (han > 0 && han <= longestLabel && !text.contains(u'。')));
    case AppLanguage::chinese:
        return han > 0 && kana + hangul == 0;
    }
    return false;
}

/// Whether the text may stand for that language though no word of it is of that language.
bool isKnownToBeForeign(AppLanguage language, const QString &name, const QString &text)
{
    static const QSet<QString> names{u"Office Basic"_s,  u"Microsoft Office"_s,        u"Homebrew formula"_s,
                                     u"Homebrew cask"_s, u"Homebrew formula + cask"_s, u"%1 TAVELO"_s,
                                     u"Item"_s};
    static const QSet<QString> vietnameseLoans{u"Log"_s, u"Package/action"_s, u"Upload report"_s,    u"Team ID"_s,
                                               u"STT"_s, u"Workspace"_s,      u"Artifact license"_s, u"Shortcut web"_s};
    static const QSet<QString> englishAndVietnamese{u"screen pdfExported"_s,      u"screen scanBeforeExport"_s,
                                                    u"screen fillInProfile"_s,    u"screen loadingBusinessConfig"_s,
                                                    u"screen syncingWorkspace"_s, u"screen savingBranding"_s,
                                                    u"screen savingProfile"_s};
    if (language == AppLanguage::vietnamese)
        return names.contains(text) || vietnameseLoans.contains(text);
    return names.contains(text) || (englishAndVietnamese.contains(name) && isWrittenIn(AppLanguage::english, text));
}

} // namespace

class AppStringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsInItsLanguageWithItsArguments()
    {
        QStringList faults;
        for (const Sample &sample : samples()) {
            for (const AppLanguage language : AppLanguages::supported()) {
                const QString text = sample.text(AppStrings(language));
                bool good = isWrittenIn(language, text) || isKnownToBeForeign(language, sample.name, text);
                for (const QString &argument : sample.arguments)
                    good = good && text.contains(argument);
                if (!good)
                    faults.append(sample.name + u' ' + rawValue(language) + u": "_s + text);
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void saysWhatWasReviewed()
    {
        QByteArray table;
        for (const Sample &sample : samples()) {
            table += '\n' + sample.name.toUtf8() + '\n';
            for (const AppLanguage language : AppLanguages::supported())
                table += "  " + (rawValue(language) + u' ' + sample.text(AppStrings(language))).toUtf8() + '\n';
        }
        const QByteArray differences = differencesFromGolden(u"app-strings.txt"_s, table.mid(1));
        QVERIFY2(differences.isEmpty(), differences);
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
    }

    void unrecognisedCheckStaysAsItCame_data()
    {
        columns<QString, QString, QString>("name", "detail", "japanese");
        row("path of brew", "Homebrew", "/opt/homebrew/bin/brew", "/opt/homebrew/bin/brew");
        row("phrase in a check with rules of its own", "Homebrew", "/Đã cài./brew", "/Đã cài./brew");
        row("label", "CPU architecture", "arm64", "arm64");
        row("name of a user", "user mode", "User: %1", "ユーザ: %1");
        row("rule of another check", "user mode", "Chưa tìm thấy brew.", "Chưa tìm thấy brew.");
        row("no size", "Dung lượng trống", "Không rõ.", "Không rõ.");
        row("unknown check", "Camera", "Không rõ.", "Không rõ.");
    }

    void unrecognisedCheckStaysAsItCame()
    {
        QFETCH(QString, name);
        QFETCH(QString, detail);
        QTEST(AppStrings(AppLanguage::japanese).systemCheckDetail(name, detail), "japanese");
        QCOMPARE(AppStrings(AppLanguage::vietnamese).systemCheckDetail(name, detail), detail);
        QCOMPARE(AppStrings(AppLanguage::japanese).systemCheckName(u"Camera"_s), u"Camera"_s);
    }

    void buttonPromisesWhatItDoes()
    {
        const auto label = [](AppKind kind, const QString &appPaths = {}) {
            return AppStrings(AppLanguage::english)
                .primaryActionLabel(InstallStatus::installed, anItem(kind, {}, appPaths));
        };
        const QString app = u"/Applications/House.app"_s;
        QCOMPARE(label(AppKind::shortcut), u"Open"_s);
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

#include "ClassifierTables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::ClassifierTables
{

namespace
{

QSet<QString> lowerCase(const QStringList &list)
{
    QSet<QString> folded;
    std::transform(list.cbegin(), list.cend(), std::inserter(folded, folded.end()),
                   [](const QString &entry) { return entry.toLower(); });
    return folded;
}

} // namespace

const QSet<QString> &operatingSystemBundleIdentifiers()
{
    static const QSet<QString> identifiers = lowerCase({
        u"com.apple.AddressBook"_s, u"com.apple.AppStore"_s,  u"com.apple.Dictionary"_s,
        u"com.apple.FaceTime"_s,    u"com.apple.finder"_s,    u"com.apple.freeform"_s,
        u"com.apple.Home"_s,        u"com.apple.iCal"_s,      u"com.apple.Image_Capture"_s,
        u"com.apple.mail"_s,        u"com.apple.MobileSMS"_s, u"com.apple.Music"_s,
        u"com.apple.Notes"_s,       u"com.apple.Photos"_s,    u"com.apple.Preview"_s,
        u"com.apple.reminders"_s,   u"com.apple.Safari"_s,    u"com.apple.systempreferences"_s,
        u"com.apple.TextEdit"_s,    u"com.apple.TV"_s,        u"com.apple.VoiceMemos"_s,
        u"com.apple.podcasts"_s,
    });
    return identifiers;
}

const QSet<QString> &keyFreeBundleIdentifiers()
{
    static const QSet<QString> identifiers = lowerCase({
        u"Mattermost.Desktop"_s,
        u"asc.onlyoffice.ONLYOFFICE"_s,
        u"ch.sudo.cyberduck"_s,
        u"com.apple.dt.Xcode"_s,
        u"com.apple.garageband10"_s,
        u"com.apple.iMovieApp"_s,
        u"com.apple.iWork.Keynote"_s,
        u"com.apple.iWork.Numbers"_s,
        u"com.apple.iWork.Pages"_s,
        u"com.bytedance.tiktok.desktop"_s,
        u"com.coteditor.CotEditor"_s,
        u"com.github.GitHubClient"_s,
        u"com.google.android.studio"_s,
        u"com.google.Chrome"_s,
        u"com.hp.SmartMac"_s,
        u"com.jgraph.drawio.desktop"_s,
        u"com.microsoft.VSCode"_s,
        u"com.tdesktop.Telegram"_s,
        u"com.wireguard.macos"_s,
        u"net.sourceforge.skim-app.skim"_s,
        u"org.gimp.gimp"_s,
        u"org.libreoffice.script"_s,
        u"org.mozilla.thunderbird"_s,
        u"org.pdfsam.basic"_s,
    });
    return identifiers;
}

const QSet<QString> &accountBasedBundleIdentifiers()
{
    static const QSet<QString> identifiers = lowerCase({
        u"com.anthropic.claudefordesktop"_s,
        u"com.google.antigravity"_s,
        u"com.google.antigravity-ide"_s,
        u"com.canva.CanvaDesktop"_s,
        u"com.bitrixsoft.bitrix24desktop"_s,
        u"com.electron.vysor"_s,
        u"com.figma.Desktop"_s,
        u"com.hnc.Discord"_s,
        u"com.microsoft.OneDrive"_s,
        u"com.microsoft.teams"_s,
        u"com.openai.chat"_s,
        u"com.openai.codex"_s,
        u"com.philandro.anydesk"_s,
        u"com.skype.skype"_s,
        u"com.teamviewer.TeamViewer"_s,
        u"com.tinyspeck.slackmacgap"_s,
        u"com.viber.osx"_s,
        u"com.vng.zalo"_s,
        u"net.whatsapp.WhatsApp"_s,
        u"io.trezor.TrezorSuite"_s,
        u"us.zoom.xos"_s,
    });
    return identifiers;
}

const QSet<QString> &ignoredSigningAuthorities()
{
    static const QSet<QString> authorities = {
        u"(unavailable)"_s,
        u"Apple Mac OS Application Signing"_s,
        u"Apple Worldwide Developer Relations Certification Authority"_s,
        u"Apple Root CA"_s,
    };
    return authorities;
}

const QList<VendorRule> &vendorRules()
{
    static const QList<VendorRule> rules = {
        {u"Microsoft"_s, {u"com.microsoft."_s, u"microsoft"_s}},
        {u"Google"_s, {u"com.google."_s, u"google"_s}},
        {u"OpenAI"_s, {u"com.openai."_s, u"openai"_s}},
        {u"Duolingo"_s, {u"com.duolingo."_s, u"duolingo"_s}},
        {u"VNG"_s, {u"com.vng."_s, u"zalo"_s}},
        {u"Zoom"_s, {u"us.zoom."_s, u"zoom"_s}},
        {u"WhatsApp"_s, {u"net.whatsapp."_s, u"whatsapp"_s}},
        {u"Slack"_s, {u"com.tinyspeck."_s, u"slack"_s}},
        {u"Telegram"_s, {u"com.tdesktop."_s, u"telegram"_s}},
        {u"Docker"_s, {u"com.docker."_s, u"io.docker."_s, u"docker"_s}},
        {u"Cloudflare"_s, {u"com.cloudflare."_s, u"cloudflare"_s}},
        {u"GitHub"_s, {u"com.github."_s, u"github"_s, u"homebrew.formula.gh"_s}},
        {u"Mozilla"_s, {u"org.mozilla."_s, u"mozilla"_s, u"firefox"_s, u"thunderbird"_s}},
        {u"GNOME Foundation"_s, {u"org.gnome."_s, u"gimp"_s}},
        {u"Adobe"_s, {u"com.adobe."_s, u"adobe"_s}},
        {u"Figma"_s, {u"com.figma."_s, u"figma"_s}},
        {u"Apple"_s, {u"com.apple."_s, u"apple"_s}},
        {u"CocoaPods"_s, {u"cocoapods"_s}},
        {u"Git"_s, {u"homebrew.formula.git"_s}},
    };
    return rules;
}

const QSet<QString> &domainPrefixes()
{
    static const QSet<QString> prefixes = {u"com"_s, u"org"_s, u"net"_s, u"io"_s, u"co"_s, u"app"_s};
    return prefixes;
}

const QSet<QString> &genericOrganisations()
{
    static const QSet<QString> words = {
        u"app"_s, u"apps"_s, u"application"_s, u"package"_s, u"software"_s, u"installer"_s,
    };
    return words;
}

const QHash<QString, QString> &projectNameWords()
{
    static const QHash<QString, QString> words = {
        {u"api"_s, u"API"_s}, {u"cli"_s, u"CLI"_s},   {u"css"_s, u"CSS"_s}, {u"gh"_s, u"GitHub"_s},
        {u"git"_s, u"Git"_s}, {u"gimp"_s, u"GIMP"_s}, {u"ide"_s, u"IDE"_s}, {u"oss"_s, u"OSS"_s},
        {u"pdf"_s, u"PDF"_s}, {u"sdk"_s, u"SDK"_s},   {u"ui"_s, u"UI"_s},
    };
    return words;
}

} // namespace Tavelo::ClassifierTables

#include "AppStrings.h"

#include "ItemTexts.h"

#include <QHash>

#include <optional>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

std::optional<AppI18nKey> groupKey(QStringView groupID)
{
    if (groupID == u"all")
        return AppI18nKey::overview;
    if (groupID == u"office")
        return AppI18nKey::groupOffice;
    if (groupID == u"microsoft")
        return AppI18nKey::groupMicrosoft;
    if (groupID == u"printer")
        return AppI18nKey::groupPrinter;
    if (groupID == u"meeting")
        return AppI18nKey::groupMeeting;
    if (groupID == u"media")
        return AppI18nKey::groupMedia;
    return std::nullopt;
}

} // namespace

QString AppStrings::groupLabel(const QString &groupID) const
{
    const std::optional<AppI18nKey> key = groupKey(groupID);
    return key ? text(*key) : groupID;
}

QString AppStrings::itemName(const AppItem &item) const
{
    // All other names are product names, or are known by their English one.
    static const QHash<QString, Texts> names{
        {u"deja-dup"_s,
         {u"Backup tool (unsupported)",
          {},
          u"백업 도구(지원되지 않음)",
          u"バックアップツール（未対応）",
          u"备份工具（不支持）"}},
        {u"rclone"_s,
         {u"rclone (unsupported)", {}, u"rclone(지원되지 않음)", u"rclone（未対応）", u"rclone（不支持）"}},
    };
    const QString name = in(names.value(item.id));
    return name.isEmpty() ? item.macName : name;
}

QString AppStrings::itemDescription(const AppItem &item) const
{
    return Tavelo::itemDescription(item, m_language);
}

QString AppStrings::itemReplacementNote(const AppItem &item) const
{
    return Tavelo::itemReplacementNote(item, m_language);
}

QString AppStrings::sourceLabel(const AppItem &item) const
{
    switch (item.kind) {
    case AppKind::direct:
        return in({u"Official download", u"Tải từ hãng", u"공식 다운로드", u"公式ダウンロード", u"官方下载"});
    case AppKind::formula:
        return u"Homebrew formula"_s;
    case AppKind::cask:
        return u"Homebrew cask"_s;
    case AppKind::bundle:
        return u"Homebrew formula + cask"_s;
    case AppKind::shortcut:
        return in({u"Web shortcut", u"Shortcut web", u"웹 바로가기", u"Webショートカット", u"网页快捷方式"});
    case AppKind::builtin:
        return in({u"Built into macOS", u"Có sẵn trong macOS", u"macOS 기본 제공", u"macOS標準", u"macOS 内置"});
    case AppKind::mime:
        return in({u"Default apps", u"App mặc định", u"기본 앱 설정", u"既定のアプリ", u"默认应用"});
    case AppKind::blocked:
        return statusText(InstallStatus::blocked);
    }
    Q_UNREACHABLE();
}

QString AppStrings::packageSummary(const QStringList &packages) const
{
    return in({u"%1 packages", u"%1 gói", u"패키지 %1개", u"パッケージ%1個", u"%1 个软件包"})
        .arg(QString::number(packages.size()));
}

QString AppStrings::summary(qsizetype installed, qsizetype total) const
{
    return in({u"%1/%2 items ready", u"%1/%2 mục sẵn sàng", u"%1/%2개 항목 준비됨", u"%1/%2項目が準備完了",
               u"%1/%2 项已就绪"})
        .arg(QString::number(installed), QString::number(total));
}

QString AppStrings::statusText(InstallStatus status, const QString &progressText) const
{
    switch (status) {
    case InstallStatus::missing:
        return in({u"Not installed", u"Chưa cài", u"설치되지 않음", u"未インストール", u"未安装"});
    case InstallStatus::installed:
        return in({u"Installed", u"Đã cài", u"설치됨", u"インストール済み", u"已安装"});
    case InstallStatus::working: {
        const QString working = in({u"Installing", u"Đang cài", u"설치 중", u"インストール中", u"正在安装"});
        return progressText.isEmpty() ? working : working + u' ' + progressText;
    }
    case InstallStatus::failed:
        return in({u"Failed", u"Thất bại", u"실패", u"失敗", u"失败"});
    case InstallStatus::blocked:
        return in({u"Unsupported", u"Không hỗ trợ", u"지원되지 않음", u"未対応", u"不支持"});
    }
    Q_UNREACHABLE();
}

QString AppStrings::primaryActionLabel(InstallStatus status, const AppItem &item) const
{
    switch (status) {
    case InstallStatus::missing:
        return in({u"Install", u"Cài", u"설치", u"インストール", u"安装"});
    case InstallStatus::installed:
        return item.canBeOpened() ? in({u"Open", u"Mở", u"열기", u"開く", u"打开"}) : text(AppI18nKey::detailHelp);
    case InstallStatus::working:
        return in({u"Working", u"Đang xử lý", u"진행 중", u"処理中", u"处理中"});
    case InstallStatus::failed:
        return in({u"Retry", u"Thử lại", u"다시 시도", u"再試行", u"重试"});
    case InstallStatus::blocked:
        return text(AppI18nKey::detailHelp);
    }
    Q_UNREACHABLE();
}

QString AppStrings::removePromptMessage(const QString &itemName) const
{
    return in({
                  u"%1 will be removed from this Mac.",
                  u"%1 sẽ được gỡ bỏ khỏi máy Mac này.",
                  u"이 Mac에서 %1을(를) 제거합니다.",
                  u"このMacから%1を削除します。",
                  u"将从这台 Mac 上移除 %1。",
              })
        .arg(itemName);
}

QString AppStrings::itemUnsupportedToast() const
{
    return in({
        u"This item is not supported on macOS",
        u"Mục này không được hỗ trợ trên macOS",
        u"이 항목은 macOS에서 지원되지 않습니다",
        u"この項目はmacOSに対応していません",
        u"macOS 不支持此项",
    });
}

} // namespace Tavelo

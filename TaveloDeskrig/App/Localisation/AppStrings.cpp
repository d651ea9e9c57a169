#include "AppStrings.h"

#include "Endpoints.h"

namespace Tavelo
{

QString AppStrings::text(AppI18nKey key) const
{
    const QString label = appI18n()[static_cast<std::size_t>(key)].in(m_language);
    return key == AppI18nKey::openBrew ? label.arg(Endpoints::homebrewSiteURL) : label;
}

QString AppStrings::text(ScreenText text) const
{
    return screenTexts()[static_cast<std::size_t>(text)].in(m_language);
}

QString AppStrings::settingsSubtitle() const
{
    return in({
        u"Settings for Tavelo Deskrig on this Mac.",
        u"Tùy chọn của Tavelo Deskrig trên máy Mac này.",
        u"이 Mac의 Tavelo Deskrig 설정입니다.",
        u"このMacでのTavelo Deskrigの設定です。",
        u"这台 Mac 上的 Tavelo Deskrig 设置。",
    });
}

QString AppStrings::languageSettingDetail() const
{
    return in({
        u"Applies immediately to the interface and to new reports. The log is always in Vietnamese.",
        u"Áp dụng ngay cho giao diện và các báo cáo mới. Log luôn bằng tiếng Việt.",
        u"인터페이스와 새 보고서에 바로 적용됩니다. 로그는 항상 베트남어로 표시됩니다.",
        u"画面表示と新しいレポートにすぐ反映されます。ログは常にベトナム語で表示されます。",
        u"立即应用于界面和新报告。日志始终使用越南语。",
    });
}

QString AppStrings::systemTitle() const
{
    return in({u"System status", u"Trạng thái máy", u"시스템 상태", u"システムの状態", u"系统状态"});
}

QString AppStrings::systemReadyDetail() const
{
    return in({
        u"Homebrew, DNS, free disk space, and user permissions are ready.",
        u"Homebrew, DNS, dung lượng trống và quyền người dùng đã sẵn sàng.",
        u"Homebrew, DNS, 여유 공간, 사용자 권한이 모두 준비되었습니다.",
        u"Homebrew、DNS、空き容量、ユーザ権限はすべて問題ありません。",
        u"Homebrew、DNS、可用空间和用户权限均已就绪。",
    });
}

QString AppStrings::setupNeeded(const QStringList &checkNames) const
{
    QStringList names;
    for (const QString &name : checkNames)
        names.append(systemCheckName(name));
    return in({u"Setup needed: %1.", u"Cần thiết lập: %1.", u"설정 필요: %1.", u"設定が必要な項目: %1。",
               u"需要设置：%1。"})
        .arg(names.join(QStringLiteral(", ")));
}

QString AppStrings::copiedLogPath() const
{
    return in({u"Copied log path", u"Đã copy đường dẫn log", u"로그 경로를 복사했습니다", u"ログのパスをコピーしました",
               u"已拷贝日志路径"});
}

QString AppStrings::copiedReportPath() const
{
    return in({u"Copied report path", u"Đã copy đường dẫn report", u"보고서 경로를 복사했습니다",
               u"レポートのパスをコピーしました", u"已拷贝报告路径"});
}

QString AppStrings::openedHomebrewGuide() const
{
    return in({u"Opened Homebrew guide", u"Đã mở hướng dẫn Homebrew", u"Homebrew 안내를 열었습니다",
               u"Homebrewのガイドを開きました", u"已打开 Homebrew 指南"});
}

QString AppStrings::copiedHomebrewInstallCommand() const
{
    return in({u"Copied Homebrew install command", u"Đã copy lệnh cài Homebrew", u"Homebrew 설치 명령어를 복사했습니다",
               u"Homebrewのインストールコマンドをコピーしました", u"已拷贝 Homebrew 安装命令"});
}

QString AppStrings::copiedHomebrewCommand() const
{
    return in({u"Copied Homebrew command", u"Đã copy lệnh Homebrew", u"Homebrew 명령어를 복사했습니다",
               u"Homebrewコマンドをコピーしました", u"已拷贝 Homebrew 命令"});
}

} // namespace Tavelo

#include "AppStrings.h"

namespace Tavelo
{

QString AppStrings::updateRequiredMessage() const
{
    return in({
        u"Install the latest Tavelo Deskrig build to continue.",
        u"Hãy cài bản Tavelo Deskrig mới nhất để tiếp tục.",
        u"계속하려면 최신 버전의 Tavelo Deskrig를 설치하세요.",
        u"続けるには、最新のTavelo Deskrigをインストールしてください。",
        u"请安装最新版 Tavelo Deskrig 以继续。",
    });
}

QString AppStrings::updateRequiredMessageWithVersion(const QString &version) const
{
    return in({
                  u"Install Tavelo Deskrig %1 or newer to continue.",
                  u"Hãy cài Tavelo Deskrig %1 trở lên để tiếp tục.",
                  u"계속하려면 Tavelo Deskrig %1 이상을 설치하세요.",
                  u"続けるには、Tavelo Deskrig %1以降をインストールしてください。",
                  u"请安装 Tavelo Deskrig %1 或更高版本以继续。",
              })
        .arg(version);
}

QString AppStrings::updateRequiredStatus() const
{
    return in({u"Update required before continuing", u"Cần cập nhật trước khi tiếp tục",
               u"계속하려면 업데이트가 필요합니다", u"続けるにはアップデートが必要です", u"需要更新后才能继续"});
}

QString AppStrings::updateRequiredToast() const
{
    return in({
        u"Install the update to continue.",
        u"Hãy cài bản cập nhật để tiếp tục.",
        u"계속하려면 업데이트를 설치하세요.",
        u"続けるには、アップデートをインストールしてください。",
        u"请安装更新以继续。",
    });
}

QString AppStrings::updateAvailableToast(const QString &version) const
{
    const QString latest = in({u"latest", u"mới nhất", u"최신", u"最新", u"最新版"});
    return in({
                  u"Update %1 is available.",
                  u"Có bản cập nhật %1.",
                  u"%1 업데이트를 설치할 수 있습니다.",
                  u"%1のアップデートを利用できます。",
                  u"有可用更新：%1。",
              })
        .arg(version.isEmpty() ? latest : version);
}

QString AppStrings::openingUpdateDownload() const
{
    return in({u"Opening update download", u"Đang mở link tải bản cập nhật", u"업데이트 다운로드 여는 중",
               u"アップデートのダウンロードを開いています", u"正在打开更新下载链接"});
}

QString AppStrings::updateDownloadUnavailable() const
{
    return in({
        u"Update download link is unavailable.",
        u"Không có link tải bản cập nhật.",
        u"업데이트 다운로드 링크를 사용할 수 없습니다.",
        u"アップデートのダウンロードリンクを利用できません。",
        u"更新下载链接不可用。",
    });
}

QString AppStrings::syncingCatalog() const
{
    return in(
        {u"Syncing catalog", u"Đang đồng bộ catalog", u"카탈로그 동기화 중", u"カタログを同期中", u"正在同步目录"});
}

QString AppStrings::uploadingReport() const
{
    return in({u"Uploading report", u"Đang upload report", u"보고서 업로드 중", u"レポートをアップロード中",
               u"正在上传报告"});
}

QString AppStrings::cloudActionFinished() const
{
    return in({u"Cloud action finished", u"Đã xong thao tác cloud", u"클라우드 작업 완료",
               u"クラウド操作が完了しました", u"云操作已完成"});
}

QString AppStrings::cloudActionFailed() const
{
    return in({u"Cloud action failed", u"Thao tác cloud thất bại", u"클라우드 작업 실패", u"クラウド操作に失敗しました",
               u"云操作失败"});
}

} // namespace Tavelo

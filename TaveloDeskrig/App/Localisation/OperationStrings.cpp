#include "AppStrings.h"

namespace Tavelo
{

QString AppStrings::checkingInstalledStatus() const
{
    return in({u"Checking installed status", u"Đang kiểm tra trạng thái cài đặt", u"설치 상태 확인 중",
               u"インストール状態を確認中", u"正在检查安装状态"});
}

QString AppStrings::statusRefreshed() const
{
    return in({u"Status refreshed", u"Đã làm mới trạng thái", u"상태를 새로 고쳤습니다", u"状態を更新しました",
               u"状态已刷新"});
}

QString AppStrings::operationSummary(qsizetype done, qsizetype total) const
{
    return in({u"%1/%2 items in current operation", u"%1/%2 mục trong thao tác hiện tại", u"현재 작업: %1/%2개 항목",
               u"現在の操作: %1/%2項目", u"当前操作：%1/%2 项"})
        .arg(QString::number(done), QString::number(total));
}

QString AppStrings::processing(const QString &name) const
{
    return in({u"Processing %1", u"Đang xử lý %1", u"%1 처리 중", u"%1を処理中", u"正在处理 %1"}).arg(name);
}

QString AppStrings::preparingInstall(const QString &name) const
{
    return in({u"Preparing to install %1", u"Đang chuẩn bị cài %1", u"%1 설치 준비 중", u"%1のインストールを準備中",
               u"正在准备安装 %1"})
        .arg(name);
}

QString AppStrings::installing(const QString &name) const
{
    return in({u"Installing %1", u"Đang cài %1", u"%1 설치 중", u"%1をインストール中", u"正在安装 %1"}).arg(name);
}

QString AppStrings::finished(const QString &name) const
{
    return in({u"Finished %1", u"Đã hoàn tất %1", u"%1 처리 완료", u"%1の処理が完了しました", u"%1 处理完成"})
        .arg(name);
}

QString AppStrings::failedToProcess(const QString &name) const
{
    return in({u"Failed to process %1", u"Không xử lý được %1", u"%1을(를) 처리하지 못했습니다",
               u"%1を処理できませんでした", u"未能处理 %1"})
        .arg(name);
}

QString AppStrings::failedItem(const QString &name) const
{
    return in({u"Failed %1", u"Thất bại: %1", u"%1 처리 실패", u"%1の処理に失敗しました", u"%1 处理失败"}).arg(name);
}

QString AppStrings::processed(const QString &name) const
{
    return in({u"Processed %1", u"Đã xử lý %1", u"%1을(를) 처리했습니다", u"%1を処理しました", u"已处理 %1"}).arg(name);
}

QString AppStrings::processedItem(const QString &name) const
{
    return processed(name);
}

QString AppStrings::removing(const QString &name) const
{
    return in({u"Removing %1", u"Đang gỡ bỏ %1", u"%1 제거 중", u"%1を削除中", u"正在移除 %1"}).arg(name);
}

QString AppStrings::preparingRemove(const QString &name) const
{
    return in({u"Preparing to remove %1", u"Đang chuẩn bị gỡ bỏ %1", u"%1 제거 준비 중", u"%1の削除を準備中",
               u"正在准备移除 %1"})
        .arg(name);
}

QString AppStrings::removed(const QString &name) const
{
    return in({u"Removed %1", u"Đã gỡ bỏ %1", u"%1을(를) 제거했습니다", u"%1を削除しました", u"已移除 %1"}).arg(name);
}

QString AppStrings::failedToRemove(const QString &name) const
{
    return in({u"Failed to remove %1", u"Không gỡ bỏ được %1", u"%1을(를) 제거하지 못했습니다",
               u"%1を削除できませんでした", u"未能移除 %1"})
        .arg(name);
}

QString AppStrings::removeFailed(const QString &name) const
{
    return in({u"Remove failed %1", u"Gỡ bỏ thất bại: %1", u"%1 제거 실패", u"%1の削除に失敗しました", u"%1 移除失败"})
        .arg(name);
}

QString AppStrings::opening(const QString &name) const
{
    return in({u"Opening %1", u"Đang mở %1", u"%1 여는 중", u"%1を開いています", u"正在打开 %1"}).arg(name);
}

QString AppStrings::opened(const QString &name) const
{
    return in({u"Opened %1", u"Đã mở %1", u"%1을(를) 열었습니다", u"%1を開きました", u"已打开 %1"}).arg(name);
}

QString AppStrings::couldNotOpen(const QString &name) const
{
    return in({u"Could not open %1", u"Không mở được %1", u"%1을(를) 열 수 없습니다", u"%1を開けませんでした",
               u"无法打开 %1"})
        .arg(name);
}

// A preset's name is a word of the language itself, not a product's, so Chinese sets no blank beside it.

QString AppStrings::preparingPreset(const QString &name) const
{
    return in({u"Preparing to install %1", u"Đang chuẩn bị cài %1", u"%1 설치 준비 중", u"%1のインストールを準備中",
               u"正在准备安装%1"})
        .arg(name);
}

QString AppStrings::installingPreset(const QString &name, qsizetype count) const
{
    return in({u"Installing %1 (%2 items)", u"Đang cài %1 (%2 mục)", u"%1 설치 중(%2개 항목)",
               u"%1をインストール中（%2項目）", u"正在安装%1（%2 项）"})
        .arg(name, QString::number(count));
}

QString AppStrings::finishedPreset(const QString &name) const
{
    return in({u"Finished preset %1", u"Đã cài xong %1", u"%1 설치 완료", u"%1のインストールが完了しました",
               u"%1安装完成"})
        .arg(name);
}

QString AppStrings::finishedPresetSummary(const QString &name, qsizetype success, qsizetype failed) const
{
    return in({
                  u"Finished preset %1: %2 succeeded, %3 failed",
                  u"Đã cài xong %1: %2 thành công, %3 thất bại",
                  u"%1 설치 완료: 성공 %2개, 실패 %3개",
                  u"%1のインストールが完了: 成功%2件、失敗%3件",
                  u"%1安装完成：成功 %2 项，失败 %3 项",
              })
        .arg(name, QString::number(success), QString::number(failed));
}

QString AppStrings::presetFailures(qsizetype failed) const
{
    return in({u"Preset has %1 failures", u"Có %1 mục cài thất bại", u"%1개 항목을 설치하지 못했습니다",
               u"%1項目のインストールに失敗しました", u"有 %1 项安装失败"})
        .arg(QString::number(failed));
}

} // namespace Tavelo

#include "ReleasePolicy.h"

#include "WireValue.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

ReleasePolicy::ReleasePolicy(const QJsonObject &data)
    : updateRequired(WireValue::boolean(data.value("update_required"_L1))),
      updateAvailable(WireValue::boolean(data.value("update_available"_L1))),
      title(WireValue::string(data.value("title"_L1), updateRequired ? u"Update required"_s : u"Update available"_s)),
      message(
          WireValue::string(data.value("message"_L1), u"Install the latest Tavelo Deskrig build to receive fixes."_s)),
      downloadURL(WireValue::string(data.value("download_url"_L1))),
      latestVersion(WireValue::string(data.value("latest_version"_L1))),
      minSupportedVersion(WireValue::string(data.value("min_supported_version"_L1)))
{
}

QString ReleasePolicy::offeredVersion() const
{
    return latestVersion.isEmpty() ? minSupportedVersion : latestVersion;
}

QString releasePolicyLogLine(const std::optional<ReleasePolicy> &policy)
{
    if (!policy)
        return u"Release policy không khả dụng; app tiếp tục fail-open."_s;
    if (policy->updateRequired)
        return u"Release policy yêu cầu update trước khi dùng tiếp."_s;
    if (policy->updateAvailable)
        return u"Release policy báo có bản mới %1."_s.arg(policy->offeredVersion());
    return u"Release policy OK cho phiên bản hiện tại."_s;
}

} // namespace Tavelo

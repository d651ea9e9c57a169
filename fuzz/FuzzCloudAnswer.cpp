#include "Catalog.h"
#include "CatalogOverlays.h"
#include "ReleasePolicy.h"
#include "WireValue.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    using namespace Tavelo;
    const std::optional<QJsonValue> body =
        WireValue::parseJSON(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!body)
        return 0;
    WireValue::responseErrorText(*body);
    WireValue::boolean(*body);
    ReleasePolicy(body->toObject());
    const QList<QJsonObject> rows = WireValue::objects(*body).value_or(QList<QJsonObject>());
    // However the rows read, they can only take away and reorder.
    const QList<AppItem> left =
        Catalog::applyingBusinessPolicies(rows, Catalog::applyingCloudOverlay(rows, Catalog::items()));
    for (const AppItem &item : left) {
        if (!Catalog::items().contains(item))
            std::abort();
    }
    return 0;
}

// Writes a cache of the cloud again and again, in many sizes, until it is killed. Each tells how many entries it has.

#include "CloudCache.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace Tavelo;

int main()
{
    const PlatformServices services = PlatformServices::make();
    FileError error;
    for (int count = 0;; count = (count + 977) % 20'000) {
        QJsonArray items;
        while (items.size() < count)
            items.append(u"entry"_s);
        if (!CloudCache::write(services, CloudCache::catalogFile, {{u"count"_s, count}, {u"items"_s, items}}, &error))
            qFatal("%s", qPrintable(error.text));
    }
}

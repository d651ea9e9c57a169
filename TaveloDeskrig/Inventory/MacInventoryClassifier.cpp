#include "MacInventoryClassifier.h"

#include "FileManager.h"

#include <algorithm>

namespace Tavelo::MacInventoryClassifier
{

const QSet<QString> &vietnameseDictionaryFileNames()
{
    static const QSet<QString> names = {QStringLiteral("vi_vn.dic"), QStringLiteral("vi_vn.aff")};
    return names;
}

bool containsVietnameseDictionary(const QStringList &folders, const FileManager &files)
{
    return std::any_of(folders.cbegin(), folders.cend(), [&](const QString &folder) {
        bool found = false;
        files.enumerate(folder, EnumerationOption::skipHidden | EnumerationOption::skipPackageDescendants,
                        [&](const FolderEntry &entry) {
                            found = vietnameseDictionaryFileNames().contains(entry.name.toLower());
                            return found ? Walk::stop : Walk::onwards;
                        });
        return found;
    });
}

} // namespace Tavelo::MacInventoryClassifier

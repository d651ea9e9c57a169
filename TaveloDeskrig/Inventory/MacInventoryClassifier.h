#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace Tavelo
{

class FileManager;

/// Pure rules that tell what a piece of software on the Mac is.
namespace MacInventoryClassifier
{

/// Lower-case names of the files that make a Vietnamese spelling dictionary.
const QSet<QString> &vietnameseDictionaryFileNames();

/// True when one of the folders holds, at any depth outside packages and hidden folders, a file of a Vietnamese
/// dictionary. Folders that do not exist are passed over.
bool containsVietnameseDictionary(const QStringList &folders, const FileManager &files);

} // namespace MacInventoryClassifier

} // namespace Tavelo

#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace Tavelo
{

class FileManager;

/// An application found in an Applications folder, before anything was asked about it.
struct ScanCandidate {
    QString path;       ///< Mac path of the bundle as it was met.
    QString name;       ///< Display name.
    QString version;    ///< "unknown" when the bundle tells none.
    QString identifier; ///< Bundle identifier, or the bundle's file name.
    QString source;     ///< "Mac App Store", "user Applications" or "/Applications".
    bool hasAppStoreReceipt = false;
    std::optional<QString> copyright;
};

/// The added applications below `/Applications` and the user's own Applications folder, at any depth outside bundles,
/// in the order of the walk. Of several with one identifier (in any case) a copy with a store receipt stays, else the
/// one outside the user's folder, else the first. Nothing when cancelled.
std::optional<QList<ScanCandidate>> scanCandidates(const FileManager &files, const QString &homeDirectory,
                                                   const std::function<bool()> &isCancelled);

} // namespace Tavelo

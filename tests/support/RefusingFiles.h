#pragma once

#include "FileManager.h"

namespace Tavelo
{

/// The real files, but for one path whose mode cannot be set. A reason of 0 stands for one that nobody tells.
struct RefusingFiles : FileManager {
    RefusingFiles(const QString &macFolder, const QString &path, int code)
        : FileManager(HostRoot(macFolder)), refused(path), reason{code, QStringLiteral("the system's words")}
    {
    }

    bool setMode(const QString &path, mode_t mode, FileError *error) const override
    {
        if (path != refused)
            return FileManager::setMode(path, mode, error);
        if (error && reason.code)
            *error = reason;
        return false;
    }

    const QString refused;
    const FileError reason;
};

} // namespace Tavelo

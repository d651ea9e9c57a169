#pragma once

#include "FileManager.h"
#include "ProgramOnAMac.h"

namespace Tavelo
{

/// A Mac whose organisation allows a few items only, in a program that knows of a cloud.
struct SmallMac : ProgramOnAMac {
    explicit SmallMac(const QByteArray &allowed = R"("microsoft-365", "onlyoffice-mime", "scanner-tools", "vlc",
                                                     "deja-dup")")
    {
        environment.insert(QStringLiteral("TAVELO_SUPABASE_URL"), QStringLiteral("https://cloud.example"));
        environment.insert(QStringLiteral("TAVELO_SUPABASE_ANON_KEY"), QStringLiteral("key"));
        const FileManager files{HostRoot(hostPath({}))};
        files.createFolder(QStringLiteral("/Users/technician/Library/Caches/tavelo-deskrig"));
        files.writeAtomically(QStringLiteral("/Users/technician/Library/Caches/tavelo-deskrig/business-policy.json"),
                              R"({"policies": [{"policy": {"allowed_item_ids": [)" + allowed + "]}}]}", 0600);
    }
};

} // namespace Tavelo

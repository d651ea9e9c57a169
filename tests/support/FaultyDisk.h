#pragma once

#include <QByteArray>
#include <QString>

namespace Tavelo
{

/// Makes the disk fail below one folder, for as long as it lives: the `at`-th call of the system that opens, makes,
/// writes, syncs, closes, renames or removes something there, or sets its mode, goes wrong. It reaches whatever the
/// program and its libraries call, within this process; one at a time.
class FaultyDisk
{
public:
    enum class Kind {
        once,  ///< That call fails with `code`. Half of what it was to write has been written.
        full,  ///< That call and all later ones that need space fail with ENOSPC.
        death, ///< The process ends there with the status `deathStatus`. Half of what it was to write has been written.
    };
    static constexpr int deathStatus = 77;

    struct Fault {
        Kind kind;
        int code; ///< An `errno` value.
        int at;   ///< From 1.
    };

    FaultyDisk(const QString &folder, const Fault &fault);
    ~FaultyDisk();
    Q_DISABLE_COPY_MOVE(FaultyDisk)

    /// Whether that many calls were made.
    bool struck() const;
};

} // namespace Tavelo

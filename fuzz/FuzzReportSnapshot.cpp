#include "MacReportProfile.h"
#include "ReportSnapshot.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto snapshot = Tavelo::ReportSnapshot::parse(bytes);
    if (snapshot && Tavelo::ReportSnapshot::parse(snapshot->json()) != snapshot)
        std::abort();
    const auto profile = Tavelo::MacReportProfile::parse(bytes);
    if (profile && Tavelo::MacReportProfile::parse(profile->json()) != profile)
        std::abort();
    return 0;
}

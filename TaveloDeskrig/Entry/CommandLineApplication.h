#pragma once

#include <QCoreApplication>

#include <memory>

namespace Tavelo
{

/// The application object of a command-line run: it gives the main thread its queue of events, takes no arguments and
/// keeps the library's remark on the terminal's locale to itself.
class CommandLineApplication
{
public:
    CommandLineApplication();

private:
    std::unique_ptr<QCoreApplication> m_application;
};

} // namespace Tavelo

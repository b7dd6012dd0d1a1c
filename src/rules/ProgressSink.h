#pragma once

#include <string>

namespace vorlane {

// Receives the progress of Save, Open and Generate. The editor shows it in its progress
// window; the command-line tool prints it or ignores it.
class ProgressSink
{
public:
    virtual ~ProgressSink() = default;
    virtual void begin(const std::string & /*title*/) {}
    virtual void setLabel(const std::string & /*label*/) {}
    virtual void setMaximum(int /*maximum*/) {}
    virtual void setValue(int /*value*/) {}
    virtual int value() const { return 0; }
    virtual void end() {}
};

} // namespace vorlane

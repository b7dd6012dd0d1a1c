#include "cli/Unattended.h"

#include "project/Open.h"
#include "project/ProjectCheck.h"
#include "io/SystemFileOps.h"

#include <future>
#include <ostream>
#include <system_error>

namespace vorlane {

namespace {

// The system's file calls, with the project file read on a thread of its own from the start:
// reading it and making the empty document are the two slow steps before a command can begin,
// and they wait on different things, the disk and the memory.
class ReadAhead final : public SystemFileOps
{
public:
    explicit ReadAhead(const std::string &path)
        : m_path(path)
    {
        try {
            m_reading = std::async(std::launch::async, [path] {
                Read read;
                read.error = SystemFileOps().readAll(path, read.bytes);
                return read;
            });
        } catch (const std::system_error &) {
            // No thread to be had: the file is read when Open asks for it.
        }
    }

    int readAll(const std::string &path, ByteBuffer &bytes) override
    {
        if (path != m_path || !m_reading.valid())
            return SystemFileOps::readAll(path, bytes);
        Read read = m_reading.get();
        bytes = std::move(read.bytes);
        return read.error;
    }

private:
    struct Read
    {
        ByteBuffer bytes;
        int error = 0;
    };

    std::string m_path;
    std::future<Read> m_reading;
};

} // namespace

MessageAnswer Unattended::showMessage(const Message &message)
{
    return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::OK;
}

std::unique_ptr<Document> openForCommand(const std::string &path,
                                         UserInterface &ui,
                                         ProgressSink &progress,
                                         std::ostream &err)
{
    ReadAhead files(path);
    auto doc = makeDocument();
    const OpenOutcome opened = openProject(*doc, path, ui, progress, files);
    if (!opened.opened()) {
        err << "vorlane-cli: " << describeOpenFailure(opened) << "\n";
        return nullptr;
    }
    return doc;
}

void printWarnings(const Document &doc, const std::string &file, std::ostream &err)
{
    for (const std::string &problem : checkProject(doc, file))
        err << "vorlane-cli: warning: " << problem << "\n";
}

} // namespace vorlane

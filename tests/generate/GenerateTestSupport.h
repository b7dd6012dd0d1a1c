#pragma once

#include "generate/FileOutput.h"
#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "model/modGlobal.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <unistd.h>

namespace vorlane::testing {

// Answers questions and file dialogs from a script and records what was asked.
class ScriptedUi : public UserInterface
{
public:
    std::deque<MessageAnswer> answers;
    std::deque<std::optional<std::string>> choices;
    std::vector<Message> messages;
    std::vector<FileDialogRequest> dialogs;

    MessageAnswer showMessage(const Message &message) override
    {
        messages.push_back(message);
        if (answers.empty())
            return MessageAnswer::OK;
        const MessageAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::optional<std::string> chooseFile(const FileDialogRequest &request) override
    {
        dialogs.push_back(request);
        if (choices.empty())
            return std::nullopt;
        auto choice = choices.front();
        choices.pop_front();
        return choice;
    }
};

// Records every progress report as a line of text.
class RecordingProgress : public ProgressSink
{
public:
    std::vector<std::string> events;
    int current = 0;
    int maximum = 0;

    void begin(const std::string &title) override { events.push_back("begin " + title); }
    void setLabel(const std::string &label) override { events.push_back("label " + label); }
    void setMaximum(int value) override
    {
        maximum = value;
        events.push_back("maximum " + std::to_string(value));
    }
    void setValue(int value) override
    {
        current = value;
        events.push_back("value " + std::to_string(value));
    }
    int value() const override { return current; }
    void end() override { events.push_back("end"); }
};

// Keeps the files in memory, in the order written; the file named `failing` fails.
class MemoryFiles : public FileOutput
{
public:
    std::vector<std::string> order;
    std::map<std::string, std::string> files;
    std::string failing;
    std::string failReason = "No space left on device";

    std::optional<std::string> writeFile(const std::string &path, std::string_view bytes) override
    {
        if (!failing.empty() && path.size() >= failing.size() &&
            path.compare(path.size() - failing.size(), failing.size(), failing) == 0)
            return failReason;
        order.push_back(path);
        files[path] = std::string(bytes);
        return std::nullopt;
    }
};

// A fresh, empty folder for one test, removed afterwards.
class TempFolder
{
public:
    TempFolder()
    {
        const auto *info = ::testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::temp_directory_path() /
                 (std::string("vorlane-") + info->test_suite_name() + "-" + info->name() + "-" +
                  std::to_string(::getpid()));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    const std::filesystem::path &path() const { return m_path; }
    // The folder with a trailing "/", as generatePath holds it.
    std::string withSeparator() const { return m_path.string() + "/"; }

private:
    std::filesystem::path m_path;
};

inline std::string readBytes(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void writeBytes(const std::filesystem::path &path, const std::string &bytes)
{
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

// Makes `slot` of `table` a live object named `id` and appends its line to the list of `kind`.
template<class Table>
auto &addObject(Document &doc, Kind kind, Table &table, int16_t slot, const std::string &id)
{
    auto &rec = table[static_cast<std::size_t>(slot)];
    rec.inUse = -1;
    rec.isNew = 0;
    rec.id = id;
    doc.list(kind).lines.push_back({id, slot});
    return rec;
}

} // namespace vorlane::testing

#include "project/MissingFiles.h"

#include "model/Kinds.h"
#include "rules/ObjectFilePath.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vorlane {

namespace {

bool startsWith(const std::array<char, 8> &head, size_t size, const char *magic, size_t length)
{
    return size >= length && std::memcmp(head.data(), magic, length) == 0;
}

bool isPicture(const std::array<char, 8> &head, size_t size)
{
    if (startsWith(head, size, "\x89PNG\r\n\x1a\n", 8) || startsWith(head, size, "BM", 2) ||
        startsWith(head, size, "\xff\xd8\xff", 3) || startsWith(head, size, "GIF87a", 6) ||
        startsWith(head, size, "GIF89a", 6))
        return true;
    // PBM, PGM and PPM, plain and raw: "P1" to "P6" and a blank.
    return size >= 3 && head[0] == 'P' && head[1] >= '1' && head[1] <= '6' &&
           (head[2] == ' ' || head[2] == '\n' || head[2] == '\r' || head[2] == '\t');
}

std::string inQuotes(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

class FileChecker
{
public:
    FileChecker(const Document &doc, std::string_view file)
        : m_doc(doc)
        , m_file(file)
    {}

    std::vector<ProjectProblem> run()
    {
        const AppSettingsRec &app = m_doc.AppSettings;
        m_subject = "application";
        check("windowIcon", app.windowIcon, false);
        if (app.splashEnabled == 1)
            check("splashImagePath", app.splashImagePath, true);
        for (Kind kind : FileOrder) {
            if (kind != Kind::Image && kind != Kind::Font && kind != Kind::Music &&
                kind != Kind::SFX)
                continue;
            withTable(m_doc, kind, [&](const auto &table) {
                for (const ListLine &line : m_doc.list(kind).lines) {
                    if (!slotInTable(kind, line.slot))
                        continue;
                    const auto &rec = table[static_cast<size_t>(line.slot)];
                    if constexpr (requires { rec.path; }) {
                        if (rec.isNew != 0)
                            continue;
                        std::string word = kindCaption(kind);
                        word[0] = static_cast<char>(word[0] - 'A' + 'a');
                        m_subject = word + " " + inQuotes(rec.id);
                        m_object = ObjectRef{kind, line.slot};
                        check("path", rec.path, kind == Kind::Image);
                    }
                }
            });
        }
        return std::move(m_warnings);
    }

private:
    void check(const char *name, const std::string &stored, bool picture)
    {
        const std::optional<std::string> path = resolveObjectPath(m_doc, stored);
        if (!path)
            return;
        const FileSignature signature = fileSignature(*path);
        if (signature == FileSignature::Missing)
            report(std::string(name) + " " + inQuotes(stored) + ": file " + inQuotes(*path) +
                   " does not exist");
        else if (picture && signature != FileSignature::Picture)
            report(std::string(name) + " " + inQuotes(stored) + ": file " + inQuotes(*path) +
                   " is not a picture Vorlane can read (PNG, BMP, JPEG, GIF, PBM, PGM, PPM)");
    }

    void report(const std::string &problem)
    {
        std::string line;
        line.append(m_file).append(": ").append(m_subject).append(": ").append(problem);
        m_warnings.push_back({std::move(line), false, m_object, true});
    }

    const Document &m_doc;
    std::string_view m_file;
    std::string m_subject;
    std::optional<ObjectRef> m_object;
    std::vector<ProjectProblem> m_warnings;
};

} // namespace

FileSignature fileSignature(const std::string &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return FileSignature::Missing;
    std::ifstream in(path, std::ios::binary);
    std::array<char, 8> head{};
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    const auto size = static_cast<size_t>(in.gcount());
    return isPicture(head, size) ? FileSignature::Picture : FileSignature::Other;
}

std::vector<ProjectProblem> missingFileWarnings(const Document &doc, std::string_view file)
{
    return FileChecker(doc, file).run();
}

} // namespace vorlane

#include "cli/Cli.h"

#include "Version.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

// The manual page of vorlane-cli says what `vorlane-cli --help` says, in the same words: these
// tests read both and compare them paragraph by paragraph.

namespace vorlane {
namespace {

// One manual page read as a reader sees it: each section's paragraphs, as plain text.
struct ManPage
{
    std::vector<std::string> header; // the arguments of .TH
    std::map<std::string, std::vector<std::string>> sections;
};

std::string replaceAll(std::string text, const std::string &from, const std::string &to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// Blanks and line ends collapsed into single blanks, none at either end.
std::string collapse(const std::string &text)
{
    std::istringstream words(text);
    std::string word, result;
    while (words >> word)
        result += (result.empty() ? "" : " ") + word;
    return result;
}

// The characters a troff escape stands for; font changes stand for nothing.
std::string unescape(std::string text)
{
    for (const char *font : {"\\fB", "\\fI", "\\fR", "\\fP"})
        text = replaceAll(text, font, "");
    text = replaceAll(text, "\\-", "-");
    text = replaceAll(text, "\\(dq", "\"");
    text = replaceAll(text, "\\&", "");
    return replaceAll(text, "\\e", "\\");
}

// A macro line's arguments: words, or texts in double quotes.
std::vector<std::string> macroArguments(const std::string &line)
{
    std::vector<std::string> arguments;
    size_t at = 0;
    while (at < line.size()) {
        if (line[at] == ' ') {
            ++at;
        } else if (line[at] == '"') {
            const size_t end = line.find('"', at + 1);
            arguments.push_back(line.substr(at + 1, end - at - 1));
            at = end == std::string::npos ? line.size() : end + 1;
        } else {
            const size_t end = std::min(line.find(' ', at), line.size());
            arguments.push_back(line.substr(at, end - at));
            at = end;
        }
    }
    return arguments;
}

ManPage readManPage(const std::string &path)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    ManPage page;
    std::vector<std::string> *section = nullptr;
    std::string paragraph;
    const auto endParagraph = [&] {
        if (section && !collapse(paragraph).empty())
            section->push_back(collapse(unescape(paragraph)));
        paragraph.clear();
    };
    std::string line;
    while (std::getline(file, line)) {
        if (line.rfind(".\\\"", 0) == 0)
            continue;
        if (line.empty() || line[0] != '.') {
            paragraph += line + "\n";
            continue;
        }
        const size_t nameEnd = std::min(line.find(' '), line.size());
        const std::string macro = line.substr(1, nameEnd - 1);
        const auto arguments = macroArguments(line.substr(nameEnd));
        std::string joined;
        if (macro == "B" || macro == "I" || macro == "SH") {
            for (const auto &argument : arguments)
                joined += (joined.empty() ? "" : " ") + argument;
        } else if (macro.size() == 2 && macro.find_first_not_of("BIR") == std::string::npos) {
            for (const auto &argument : arguments)
                joined += argument;
        }
        if (macro == "TH") {
            page.header = arguments;
        } else if (macro == "SH") {
            endParagraph();
            section = &page.sections[joined];
        } else if (macro == "B" || macro == "I" || macro.size() == 2) {
            if (macro == "br" || macro == "TP" || macro == "PP" || macro == "RS" || macro == "RE" ||
                macro == "EX" || macro == "EE")
                endParagraph();
            else
                paragraph += joined + "\n";
        } else {
            endParagraph();
        }
    }
    endParagraph();
    return page;
}

// What --help says: its description, each command's synopsis and description, the exit codes
// and the closing note, with their line breaks collapsed.
struct Help
{
    std::string description;
    std::vector<std::string> synopses;
    std::vector<std::string> commands; // synopsis and description together
    std::vector<std::string> exitCodes;
    std::string note;
};

Help readHelp(const std::string &text)
{
    Help help;
    std::istringstream lines(text);
    std::string line, block;
    std::vector<std::string> blocks;
    while (std::getline(lines, line)) {
        if (line.empty()) {
            blocks.push_back(block);
            block.clear();
        } else {
            block += line + "\n";
        }
    }
    blocks.push_back(block);
    EXPECT_EQ(blocks.size(), 5u) << text;
    if (blocks.size() != 5)
        return help;
    help.description = collapse(blocks[1]);
    help.note = collapse(blocks[4]);

    // An entry starts on a line indented by two blanks; its description follows two or more
    // blanks on that line, or on the lines below.
    std::istringstream commands(blocks[2]);
    std::getline(commands, line);
    EXPECT_EQ(line, "Commands:");
    while (std::getline(commands, line)) {
        if (line.rfind("  ", 0) == 0 && line[2] != ' ') {
            const std::string entry = line.substr(2);
            const size_t gap = entry.find("  ");
            help.synopses.push_back(entry.substr(0, gap));
            help.commands.push_back(entry);
        } else {
            help.commands.back() += " " + line;
        }
    }
    for (auto &command : help.commands)
        command = collapse(command);

    std::istringstream codes(blocks[3]);
    std::getline(codes, line);
    EXPECT_EQ(line, "Exit codes:");
    while (std::getline(codes, line))
        help.exitCodes.push_back(collapse(line));
    return help;
}

class ManPageTest : public ::testing::Test
{
protected:
    ManPage page = readManPage(VORLANE_MAN_PAGE);
    Help help = readHelp(cliHelpText());
};

TEST_F(ManPageTest, HasTheSectionsOfAManualPage)
{
    for (const char *name :
         {"NAME", "SYNOPSIS", "DESCRIPTION", "COMMANDS", "EXIT STATUS", "EXAMPLES", "FILES"})
        EXPECT_FALSE(page.sections[name].empty()) << name;
    EXPECT_EQ(page.sections["NAME"].front(),
              "vorlane-cli - check Vorlane project files and generate the Korrin engine's files");
}

TEST_F(ManPageTest, GivesTheVersionOfTheProgram)
{
    ASSERT_EQ(page.header.size(), 5u);
    EXPECT_EQ(page.header[0], "VORLANE-CLI");
    EXPECT_EQ(page.header[1], "1");
    EXPECT_EQ(page.header[3], std::string("Vorlane ") + VersionText);
}

TEST_F(ManPageTest, SynopsisHasEveryCommandOfHelp)
{
    std::vector<std::string> expected;
    for (const auto &synopsis : help.synopses)
        expected.push_back("vorlane-cli " + synopsis);
    EXPECT_EQ(page.sections["SYNOPSIS"], expected);
    EXPECT_EQ(expected.size(), 10u);
}

TEST_F(ManPageTest, DescriptionBeginsWithTheWordsOfHelp)
{
    ASSERT_FALSE(page.sections["DESCRIPTION"].empty());
    EXPECT_EQ(page.sections["DESCRIPTION"].front(), help.description);
    EXPECT_EQ(help.description,
              "Checks Vorlane project files and generates the Korrin engine's files from them, "
              "without a display.");
}

TEST_F(ManPageTest, CommandsAreThoseOfHelpWordForWord)
{
    EXPECT_EQ(page.sections["COMMANDS"], help.commands);
    ASSERT_EQ(help.commands.size(), 10u);
    EXPECT_EQ(help.commands[2].substr(0, 40), "check PROJECT.dvb read the project file ");
}

TEST_F(ManPageTest, ExitStatusIsThatOfHelp)
{
    auto expected = help.exitCodes;
    expected.push_back(help.note);
    EXPECT_EQ(page.sections["EXIT STATUS"], expected);
    ASSERT_EQ(help.exitCodes.size(), 3u);
    EXPECT_EQ(help.exitCodes[0], "0 success");
    EXPECT_EQ(help.note.substr(0, 74),
              "Errors are printed on standard error as \"vorlane-cli: FILE:LINE: message\".");
}

TEST_F(ManPageTest, ExamplesRunCommandsOfHelp)
{
    int examples = 0;
    for (const auto &paragraph : page.sections["EXAMPLES"]) {
        if (paragraph.rfind("vorlane-cli ", 0) != 0)
            continue;
        ++examples;
        const std::string command = paragraph.substr(12, paragraph.find(' ', 12) - 12);
        bool known = false;
        for (const auto &synopsis : help.synopses)
            known = known || synopsis.rfind(command + " ", 0) == 0;
        EXPECT_TRUE(known) << paragraph;
    }
    EXPECT_EQ(examples, 4);
}

} // namespace
} // namespace vorlane

#include "json/JsonText.h"

#include <cstddef>
#include <iterator>
#include <vector>

namespace vorlane {

namespace {

// Walks a text for the parser and remembers the last byte it handed over, so that the SAX
// events below know where in the text the parser stands.
class TrackingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;

    TrackingIterator(const char *at, const char **last)
        : m_at(at)
        , m_last(last)
    {}
    reference operator*() const
    {
        *m_last = m_at;
        return *m_at;
    }
    TrackingIterator &operator++()
    {
        ++m_at;
        return *this;
    }
    TrackingIterator operator++(int)
    {
        TrackingIterator before = *this;
        ++m_at;
        return before;
    }
    bool operator==(const TrackingIterator &other) const { return m_at == other.m_at; }

private:
    const char *m_at;
    const char **m_last;
};

bool numberChar(char c)
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

// Follows the parser's events with the JSON pointer of each value, and notes where the value
// named by `target` begins, or where the text breaks.
class Locator : public nlohmann::json_sax<Json>
{
public:
    Locator(std::string_view text, std::optional<std::vector<std::string>> target)
        : m_text(text)
        , m_target(std::move(target))
    {}

    bool parse()
    {
        const char *begin = m_text.data();
        const char *end = begin + m_text.size();
        m_last = begin;
        return Json::sax_parse(
            TrackingIterator(begin, &m_last), TrackingIterator(end, &m_last), this);
    }

    std::optional<size_t> found;  // where the target value begins
    std::optional<size_t> broken; // where the text breaks
    std::string brokenPointer;    // the pointer of the innermost value there

    bool null() override { return literal(4); }
    bool boolean(bool value) override { return literal(value ? 4 : 5); }
    bool number_integer(number_integer_t) override { return number(); }
    bool number_unsigned(number_unsigned_t) override { return number(); }
    bool number_float(number_float_t, const string_t &) override { return number(); }
    bool string(string_t &) override
    {
        // The parser has just read the closing quote; the opening one is the first quote
        // before it that no odd run of backslashes escapes.
        size_t at = here();
        while (at > 0) {
            --at;
            if (m_text[at] != '"')
                continue;
            size_t slashes = 0;
            while (at > slashes && m_text[at - 1 - slashes] == '\\')
                ++slashes;
            if (slashes % 2 == 0)
                break;
        }
        return scalar(at);
    }
    bool binary(binary_t &) override { return scalar(here()); }
    bool start_object(std::size_t) override { return open(false); }
    bool start_array(std::size_t) override { return open(true); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t &key) override
    {
        m_levels.back().key = key;
        return true;
    }
    bool parse_error(std::size_t position,
                     const std::string &,
                     const nlohmann::detail::exception &) override
    {
        broken = position > 0 ? position - 1 : 0;
        brokenPointer = pointerText(m_path.size());
        if (!m_levels.empty() && !m_levels.back().array && !m_levels.back().key.empty())
            brokenPointer += "/" + token(m_levels.back().key);
        return false;
    }

private:
    struct Level
    {
        bool array = false;
        size_t index = 0;
        std::string key;
    };

    size_t here() const { return static_cast<size_t>(m_last - m_text.data()); }

    bool literal(size_t length) { return scalar(here() + 1 - length); }

    bool number()
    {
        // The parser read one character past the number, unless the text ended with it.
        size_t at = here();
        if (!numberChar(m_text[at]) && at > 0)
            --at;
        while (at > 0 && numberChar(m_text[at - 1]))
            --at;
        return scalar(at);
    }

    // A value begins at `start`: is it the one looked for?
    bool begin(size_t start)
    {
        if (!m_levels.empty()) {
            Level &level = m_levels.back();
            m_path.push_back(level.array ? std::to_string(level.index++) : level.key);
        }
        if (m_target && !found && m_path == *m_target) {
            found = start;
            return false; // nothing more to learn
        }
        return true;
    }

    bool scalar(size_t start)
    {
        const bool goOn = begin(start);
        if (!m_levels.empty())
            m_path.pop_back();
        return goOn;
    }

    bool open(bool array)
    {
        const bool goOn = begin(here());
        m_levels.push_back({array, 0, {}});
        return goOn;
    }

    bool close()
    {
        m_levels.pop_back();
        if (!m_levels.empty())
            m_path.pop_back();
        return true;
    }

    static std::string token(std::string_view key)
    {
        std::string out;
        for (char c : key)
            out += c == '~' ? std::string("~0") : c == '/' ? std::string("~1") : std::string(1, c);
        return out;
    }

    std::string pointerText(size_t depth) const
    {
        std::string out;
        for (size_t i = 0; i < depth; ++i)
            out.append("/").append(token(m_path[i]));
        return out;
    }

    std::string_view m_text;
    std::optional<std::vector<std::string>> m_target;
    const char *m_last = nullptr;
    std::vector<Level> m_levels;
    std::vector<std::string> m_path; // tokens of the open values below the root
};

// The tokens of a JSON pointer, "~1" and "~0" undone.
std::vector<std::string> tokensOf(std::string_view pointer)
{
    std::vector<std::string> tokens;
    size_t at = 0;
    while (at < pointer.size() && pointer[at] == '/') {
        size_t end = pointer.find('/', at + 1);
        if (end == std::string_view::npos)
            end = pointer.size();
        std::string token;
        for (size_t i = at + 1; i < end; ++i) {
            if (pointer[i] == '~' && i + 1 < end &&
                (pointer[i + 1] == '0' || pointer[i + 1] == '1')) {
                token += pointer[i + 1] == '0' ? '~' : '/';
                ++i;
            } else {
                token += pointer[i];
            }
        }
        tokens.push_back(std::move(token));
        at = end;
    }
    return tokens;
}

// nlohmann's message without its own heading and place: "syntax error while parsing ...".
std::string syntaxMessage(const std::string &what)
{
    const size_t column = what.find(", column ");
    const size_t colon = column == std::string::npos ? what.find("] ") : what.find(": ", column);
    if (colon == std::string::npos)
        return what;
    return what.substr(colon + 2);
}

} // namespace

TextPosition positionOf(std::string_view text, size_t offset)
{
    TextPosition position;
    const size_t end = std::min(offset, text.size());
    for (size_t i = 0; i < end; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte == '\n') {
            ++position.line;
            position.column = 1;
        } else if ((byte & 0xC0) != 0x80) {
            ++position.column;
        }
    }
    return position;
}

std::optional<TextPosition> locateJsonValue(std::string_view text, std::string_view pointer)
{
    Locator locator(text, tokensOf(pointer));
    locator.parse();
    if (!locator.found)
        return std::nullopt;
    return positionOf(text, *locator.found);
}

std::string problemText(std::string_view file, const JsonProblem &problem)
{
    std::string text(file);
    text.append(":")
        .append(std::to_string(problem.position.line))
        .append(":")
        .append(std::to_string(problem.position.column))
        .append(": ");
    if (!problem.pointer.empty())
        text.append(problem.pointer).append(": ");
    return text.append(problem.message);
}

std::optional<JsonProblem> parseJson(std::string_view text, Json &json)
{
    try {
        json = Json::parse(text.begin(), text.end());
        return std::nullopt;
    } catch (const Json::parse_error &error) {
        Locator locator(text, std::nullopt);
        locator.parse();
        const size_t at = locator.broken.value_or(error.byte > 0 ? error.byte - 1 : 0);
        return JsonProblem{
            positionOf(text, at), locator.brokenPointer, syntaxMessage(error.what())};
    }
}

std::optional<JsonProblem> projectFromJsonText(std::string_view text, Document &doc)
{
    Json json;
    if (auto problem = parseJson(text, json))
        return problem;
    try {
        projectFromJson(json, doc);
    } catch (const JsonValueError &error) {
        return JsonProblem{locateJsonValue(text, error.pointer).value_or(TextPosition{}),
                           error.pointer,
                           error.message};
    }
    return std::nullopt;
}

} // namespace vorlane

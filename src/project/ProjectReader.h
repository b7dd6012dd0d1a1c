#pragma once

#include "rules/ProgressSink.h"
#include "model/modGlobal.h"

#include <string>
#include <string_view>

namespace vorlane {

// How the reader treats what the program does not keep.
struct ReadOptions
{
    // Keep the two values of the file that Open drops: the cursor of a hot spot's line
    // (instead of "null") and a splashEnabled other than 1 (instead of 0), for the forms that
    // must carry everything the file holds (the JSON export).
    bool keepFileValues = false;
};

// What reading a project file came to.
struct ProjectReadResult
{
    enum class Status {
        Read,   // every field was read
        Empty,  // the file holds no bytes at all; nothing was read
        Damaged // reading stopped at `line`; what was read before it stays in the document
    };
    Status status = Status::Read;
    int line = 0;        // Damaged: the 1-based line of the damage
    std::string message; // Damaged: what was expected there ("a number was expected for x")
};

// Reads the project file `bytes` (UTF-8 when it begins with the byte order mark EF BB BF, a
// malformed sequence's bytes read as "?"; Windows-1252 otherwise; CR LF or LF line ends) into `doc`
// and appends each object's id to its list, with the slot as the line's item data. The document is
// not cleared first. Reports the "Loading ..." labels and one step per object to `progress`.
//
// The reader is field-oriented: a comma, a line end (CR LF or LF) and the end of the file
// all end a field. A text field is a double quote, any bytes other than a double quote, CR
// or LF, and a closing double quote. A number is an optional "-" followed by one or more
// digits 0-9, nothing else (no "+", blanks or decimal point), within the range of its field.
// A count that decides how many records or lines follow may not be negative nor exceed the
// slots it fills. Whatever follows the last field of the file is ignored.
ProjectReadResult readProject(std::string_view bytes, Document &doc, ProgressSink &progress);

// The same, without progress reports.
ProjectReadResult readProject(std::string_view bytes, Document &doc);

// The same, read as `options` say.
ProjectReadResult readProject(std::string_view bytes,
                              Document &doc,
                              ProgressSink &progress,
                              const ReadOptions &options);

// "FILE:LINE: MESSAGE", the form in which damage is shown.
std::string damageText(std::string_view file, int line, std::string_view message);

} // namespace vorlane

#pragma once

#include "model/modGlobal.h"

#include <memory>
#include <string>
#include <string_view>

namespace vorlane::fuzz {

// Reads a project file, and when it reads completely writes the project back, reads that
// again and writes it once more: both reads must give the same document and both writes the
// same bytes. Damaged input must be reported with its line and a message. The documents are
// kept between runs (a Document is about 10 MB) and cleared of what each run read.
class ProjectRoundTrip
{
public:
    ProjectRoundTrip();

    // Empty when `bytes` passed; otherwise what went wrong.
    std::string run(std::string_view bytes);

    // Empty when every slot of both documents is as in a new document, as it must be between
    // runs; otherwise the first field left over. Slow: for replaying files, not fuzzing.
    std::string leftOver() const;

private:
    std::string readBack(std::string_view bytes);

    std::unique_ptr<Document> m_first;
    std::unique_ptr<Document> m_second;
};

// The first field in which `a` and `b` differ ("Sprites[2].anims[0].frameCount: 3 / 4"), or
// nothing. With `everySlot` every slot of every table is compared; otherwise only the slots
// a reader can have touched, as told by the lists of both documents.
std::string firstDifference(const Document &a, const Document &b, bool everySlot);

// Returns `doc` to the state of a new document, touching only what reading a file can set.
void clearAfterRead(Document &doc);

} // namespace vorlane::fuzz

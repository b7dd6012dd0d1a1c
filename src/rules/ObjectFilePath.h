#pragma once

#include "model/modGlobal.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// The file on disk that an object's stored path names: an absolute path as it is; a relative
// one against the application root folder when that is set, else against the folder of the
// project file. "\" and "/" both separate folders; the result uses "/". "null" (or an empty
// path) names no file. A relative root folder is itself taken from the project file's folder.
std::optional<std::string> resolveObjectPath(std::string_view stored,
                                             std::string_view rootFolder,
                                             std::string_view projectFile);

// The project file whose folder relative paths count from: the file the project was opened
// from, else (a new project saved since) the file it was saved to; empty before either.
std::string pathsProjectFile(const Document &doc);

// The same with the root folder and project file of the open project.
std::optional<std::string> resolveObjectPath(const Document &doc, std::string_view stored);

// Whether a path (with either separator) is absolute: it begins with a separator or with a
// drive letter and a colon, as project files made on Windows hold them.
bool isAbsolutePath(std::string_view path);

} // namespace vorlane

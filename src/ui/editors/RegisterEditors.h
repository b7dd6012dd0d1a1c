#pragma once

namespace vorlane {

class frmMain;

// Makes Edit Properties (and a double click on a list line) open each kind's editor.
void registerEditors(frmMain &window);

} // namespace vorlane

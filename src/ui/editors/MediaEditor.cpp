#include "MediaEditor.h"

#include "frmMain.h"
#include "rules/FieldRules.h"

#include <QLineEdit>

#include <array>
#include <stdexcept>
#include <string>

namespace vorlane {

namespace {

// The default playback settings in the order the editor fills them, with the role that
// names each box.
struct PlaybackBox
{
    const char *role;
    int16_t MusicRec::*field;
};
constexpr std::array<PlaybackBox, 3> PlaybackBoxes{{
    {"DefaultVolume", &MusicRec::defaultVolume},
    {"DefaultPriority", &MusicRec::defaultPriority},
    {"DefaultPan", &MusicRec::defaultPan},
}};

} // namespace

MediaEditor::MediaEditor(Document &doc, const MediaForm &form, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, form.kind, mainWindow, parent ? parent : mainWindow)
    , m_form(form)
    , m_fields(mediaFields(doc, form.kind, doc.currentObjectIndex))
{}

QLineEdit *MediaEditor::box(const char *role) const
{
    const std::string name = std::string("txt") + m_form.name + role;
    auto *found = findChild<QLineEdit *>(QString::fromStdString(name));
    if (!found)
        throw std::logic_error("the form has no text box " + name);
    return found;
}

// The bindings in the order the load fills them.
void MediaEditor::declareBindings()
{
    bindIdentifier(box("ID"), m_fields.id);
    bindReference(box("Path"), m_fields.path);
    if (m_fields.playback) {
        for (const PlaybackBox &setting : PlaybackBoxes)
            bindNumber(box(setting.role), m_fields.playback->*setting.field, byteField());
    }
}

void MediaEditor::newRecordDefaults()
{
    setMediaDefaults(m_fields);
}

} // namespace vorlane

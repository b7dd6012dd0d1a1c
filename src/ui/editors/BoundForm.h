#pragma once

#include "CheckBinding.h"
#include "ListBinding.h"
#include "OptionBinding.h"
#include "TextBinding.h"
#include "rules/FieldRules.h"
#include "model/Kinds.h"
#include "model/modGlobal.h"

#include <QDialog>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace vorlane {

// A window that edits the document in place, declared as a list of bindings from its
// controls to fields: loading fills the controls in the order the bindings were declared,
// every change is stored at once, and Escape and the close box both close it through done(),
// which unloads it once. The object editors and the settings dialogs are built on it.
class BoundForm : public QDialog
{
    Q_OBJECT
public:
    // Key code of Escape, the one key these windows handle.
    static constexpr int EscapeKeyCode = 27;

    explicit BoundForm(Document &doc, QWidget *parent = nullptr);
    ~BoundForm() override;

    // Fills every control from its field.
    virtual void Form_Load();
    // What closing does besides closing; nothing by default.
    virtual void Form_Unload();
    void Form_KeyUp(int keyCode);

    // Loads the window and shows it modally; returns when it closes.
    int run();

    Document &document() { return m_doc; }

    // Every close, by Escape, the close box or code, ends here.
    void done(int result) override;

protected:
    // Identifier box: an emptied box shows "Enter_ID".
    TextBinding &bindIdentifier(QLineEdit *box, std::string &field);
    // Path box: an empty box stores "null", a typed "null" empties it.
    TextBinding &bindReference(QLineEdit *box, std::string &field);
    // Optional text: an empty box stores "null", a typed "null" stays.
    TextBinding &bindContent(QLineEdit *box, std::string &field);
    // Number box of a 16-bit or 32-bit field.
    template<class Int>
    TextBinding &bindNumber(QLineEdit *box, Int &field, NumberField rule = {});
    // Any other text box: how it shows its field and what its change does.
    TextBinding &bindText(QLineEdit *box, TextBinding::Shown shown, TextBinding::Change change);
    // Drop-down of objects of `kind` (not new, and passing `filter`), following the
    // reference rule; choosing an entry stores it.
    ListBinding &bindList(QComboBox *box, std::string &field, Kind kind, ListFilter filter = {});
    // Drop-down offering what `offer` gives, following the reference rule; choosing an entry
    // stores it.
    ListBinding &bindList(QComboBox *box, std::string &field, ListBinding::Offer offer);
    // Drop-down of objects of `kind` whose text change does something of its own.
    ListBinding &bindList(QComboBox *box,
                          Kind kind,
                          ListFilter filter,
                          TextBinding::Shown shown,
                          TextBinding::Change change,
                          ListBinding::Click click);
    // Check box storing 1 or 0; `then` runs after each click has been stored.
    CheckBinding &bindCheck(QCheckBox *box, int16_t &field, std::function<void()> then = {});
    // Option group storing the chosen option's code.
    OptionBinding &bindOptions(std::vector<Option> options, int16_t &field);
    // A step of the load that is not a field of its own (captions, enabled controls); it runs
    // in its place among the fills.
    void loadStep(std::function<void()> step);

    // Shows every field in its control, in the order the bindings were declared.
    void fillControls();

    static void enableControls(const std::vector<QWidget *> &controls, bool enabled);

private:
    template<class Binding>
    Binding &add(std::unique_ptr<Binding> binding);
    TextBinding &bindNumberTo(QLineEdit *box,
                              std::function<int32_t()> shown,
                              std::function<void(int32_t)> store,
                              NumberField rule);

    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    static bool isReturnKey(const QKeyEvent &key);
    bool eventFilter(QObject *watched, QEvent *event) override;

    Document &m_doc;
    bool m_unloaded = false;
    bool m_escapeClosesList = false;
    std::vector<std::unique_ptr<FieldBinding>> m_bindings;
};

template<class Int>
TextBinding &BoundForm::bindNumber(QLineEdit *box, Int &field, NumberField rule)
{
    static_assert(std::is_same_v<Int, int16_t> || std::is_same_v<Int, int32_t>);
    rule.range = std::is_same_v<Int, int32_t> ? Int32Range : Int16Range;
    return bindNumberTo(
        box,
        [&field]() { return static_cast<int32_t>(field); },
        [&field](int32_t value) { field = static_cast<Int>(value); },
        std::move(rule));
}

} // namespace vorlane

#include "BoundForm.h"

#include "TextLength.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace vorlane {

namespace {

// A load step that shows no field of its own.
class LoadStep : public FieldBinding
{
public:
    explicit LoadStep(std::function<void()> step)
        : m_step(std::move(step))
    {}
    void fill() override { m_step(); }

private:
    std::function<void()> m_step;
};

// A text rule writing its value into a text field.
TextBinding::Change storeWith(std::string &field, TextOutcome (*rule)(std::string_view))
{
    return [&field, rule](const std::string &text) {
        TextOutcome outcome = rule(text);
        field = std::move(outcome.value);
        return outcome.boxText;
    };
}

} // namespace

BoundForm::BoundForm(Document &doc, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
{
    setModal(true);
    // The window sees every key released in it, whichever control has the focus: text boxes
    // keep their key releases to themselves.
    qApp->installEventFilter(this);
}

BoundForm::~BoundForm()
{
    qApp->removeEventFilter(this);
}

void BoundForm::Form_Load()
{
    fillControls();
}

void BoundForm::fillControls()
{
    // Before any box is filled, so that none cuts its field's text.
    allowAnyLength(this);
    for (const auto &binding : m_bindings)
        binding->fill();
}

void BoundForm::Form_Unload() {}

void BoundForm::Form_KeyUp(int keyCode)
{
    if (keyCode == EscapeKeyCode)
        close();
}

int BoundForm::run()
{
    Form_Load();
    return exec();
}

void BoundForm::done(int result)
{
    if (!m_unloaded) {
        m_unloaded = true;
        Form_Unload();
    }
    QDialog::done(result);
}

void BoundForm::showEvent(QShowEvent *event)
{
    // No button is the window's default, so none is drawn as the one Return would click.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
    QDialog::showEvent(event);
}

bool BoundForm::isReturnKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

void BoundForm::keyPressEvent(QKeyEvent *event)
{
    // Escape acts when it is released, like every other close; pressing it does nothing.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

bool BoundForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        auto *widget = qobject_cast<QWidget *>(watched);
        // Escape is the one key these windows handle: Return and Enter reach no control of
        // the window, so they click no button and accept no completion in a drop-down.
        // A drop-down's open list is a window of its own and still takes them.
        if (event->type() == QEvent::KeyPress && isReturnKey(*key) && widget &&
            widget->window() == this)
            return true;
        // An Escape pressed while a drop-down's list is open closes only the list; its
        // release, which reaches the drop-down once the list is gone, must not close the window.
        const bool inList = QApplication::activePopupWidget() ||
                            (widget && widget->window()->windowType() == Qt::Popup);
        if (key->key() == Qt::Key_Escape && !key->isAutoRepeat() && inList)
            m_escapeClosesList = true;
    } else if (event->type() == QEvent::KeyRelease) {
        auto *key = static_cast<QKeyEvent *>(event);
        auto *widget = qobject_cast<QWidget *>(watched);
        if (key->key() == Qt::Key_Escape && !key->isAutoRepeat() && m_escapeClosesList) {
            m_escapeClosesList = false;
            return true;
        }
        if (widget && widget->window() == this && key->key() == Qt::Key_Escape &&
            !key->isAutoRepeat()) {
            Form_KeyUp(EscapeKeyCode);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

template<class Binding>
Binding &BoundForm::add(std::unique_ptr<Binding> binding)
{
    Binding &added = *binding;
    m_bindings.push_back(std::move(binding));
    return added;
}

TextBinding &BoundForm::bindIdentifier(QLineEdit *box, std::string &field)
{
    return bindText(
        box, [&field]() { return field; }, storeWith(field, identifierRule));
}

TextBinding &BoundForm::bindReference(QLineEdit *box, std::string &field)
{
    return bindText(
        box, [&field]() { return field; }, storeWith(field, referenceRule));
}

TextBinding &BoundForm::bindContent(QLineEdit *box, std::string &field)
{
    return bindText(
        box, [&field]() { return field; }, storeWith(field, contentRule));
}

TextBinding &BoundForm::bindNumberTo(QLineEdit *box,
                                     std::function<int32_t()> shown,
                                     std::function<void(int32_t)> store,
                                     NumberField rule)
{
    return bindText(
        box,
        [shown = std::move(shown)]() { return std::to_string(shown()); },
        [store = std::move(store), rule = std::move(rule)](const std::string &text) {
            const NumberOutcome outcome = numberRule(text, rule);
            store(outcome.value);
            return outcome.boxText;
        });
}

TextBinding &
BoundForm::bindText(QLineEdit *box, TextBinding::Shown shown, TextBinding::Change change)
{
    return add(std::make_unique<TextBinding>(box, std::move(shown), std::move(change)));
}

ListBinding &BoundForm::bindList(QComboBox *box, std::string &field, Kind kind, ListFilter filter)
{
    return bindList(
        box,
        kind,
        std::move(filter),
        [&field]() { return field; },
        storeWith(field, referenceRule),
        [&field](const std::string &chosen) { field = chosen; });
}

ListBinding &BoundForm::bindList(QComboBox *box, std::string &field, ListBinding::Offer offer)
{
    return add(std::make_unique<ListBinding>(
        box,
        std::move(offer),
        [&field]() { return field; },
        storeWith(field, referenceRule),
        [&field](const std::string &chosen) { field = chosen; }));
}

ListBinding &BoundForm::bindList(QComboBox *box,
                                 Kind kind,
                                 ListFilter filter,
                                 TextBinding::Shown shown,
                                 TextBinding::Change change,
                                 ListBinding::Click click)
{
    auto offer = [this, kind, filter = std::move(filter)]() {
        return offeredIds(m_doc, kind, filter);
    };
    return add(std::make_unique<ListBinding>(
        box, std::move(offer), std::move(shown), std::move(change), std::move(click)));
}

CheckBinding &BoundForm::bindCheck(QCheckBox *box, int16_t &field, std::function<void()> then)
{
    return add(std::make_unique<CheckBinding>(
        box,
        [&field]() { return field == 1; },
        [&field, then = std::move(then)](bool checked) {
            field = checkRule(checked);
            if (then)
                then();
        }));
}

OptionBinding &BoundForm::bindOptions(std::vector<Option> options, int16_t &field)
{
    return add(std::make_unique<OptionBinding>(
        std::move(options),
        [&field]() { return field; },
        [&field](int16_t code) { field = code; }));
}

void BoundForm::loadStep(std::function<void()> step)
{
    add(std::make_unique<LoadStep>(std::move(step)));
}

void BoundForm::enableControls(const std::vector<QWidget *> &controls, bool enabled)
{
    for (QWidget *control : controls)
        control->setEnabled(enabled);
}

} // namespace vorlane

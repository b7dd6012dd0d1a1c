#include "ObjectListView.h"

#include <QListWidget>

#include <utility>

namespace vorlane {

ObjectListView::ObjectListView(QListWidget *widget,
                               ObjectList &list,
                               std::function<void()> clicked,
                               std::function<void()> doubleClicked)
    : QObject(widget)
    , m_widget(widget)
    , m_list(list)
    , m_clicked(std::move(clicked))
    , m_doubleClicked(std::move(doubleClicked))
{
    connect(widget, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_mirroring)
            return;
        m_list.selected = row;
        m_clicked();
    });
    // A line stays selected: Ctrl+click must not leave the buttons acting on a line that no
    // longer looks selected.
    connect(widget, &QListWidget::itemSelectionChanged, this, [this]() {
        if (m_widget->selectedItems().isEmpty() && m_widget->currentItem())
            m_widget->currentItem()->setSelected(true);
    });
    // A click on the line that is already selected runs the click too.
    connect(widget, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        m_list.selected = m_widget->row(item);
        m_clicked();
    });
    connect(widget, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem *) {
        if (m_doubleClicked)
            m_doubleClicked();
    });
}

void ObjectListView::show()
{
    m_mirroring = true;
    m_widget->clear();
    for (const ListLine &line : m_list.lines) {
        auto *item = new QListWidgetItem(QString::fromStdString(line.text));
        item->setData(SlotRole, static_cast<int>(line.slot));
        m_widget->addItem(item);
    }
    m_widget->setCurrentRow(m_list.selected);
    m_mirroring = false;
    if (m_list.selected >= 0)
        m_clicked();
}

} // namespace vorlane

#include "list_box.h"

#include <QListWidget>

#include "look.h"

namespace verdane {

namespace {

void keep_selection(QListWidget& list)
{
    QListWidgetItem* current = list.currentItem();
    if (current && list.selectedItems().isEmpty())
        current->setSelected(true);
}

}  // namespace

QListWidget* make_list_box(int characters)
{
    auto* list = new QListWidget;
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setMinimumWidth(list->fontMetrics().averageCharWidth() * characters + 4 * rhythm);
    QObject::connect(list, &QListWidget::itemSelectionChanged, list, [list] { keep_selection(*list); });
    return list;
}

void fill_list_box(QListWidget& list, const QStringList& lines)
{
    list.addItems(lines);
    list.setCurrentRow(0);
}

}  // namespace verdane

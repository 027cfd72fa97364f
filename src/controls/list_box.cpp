#include "controls/list_box.h"

#include <QListWidget>

#include <algorithm>

#include "controls/look.h"

namespace verdane {

namespace {

/// The width of the day and time of a round.
constexpr int least_characters = 20;
constexpr int least_lines = 4;

void keep_selection(QListWidget& list)
{
    QListWidgetItem* current = list.currentItem();
    if (current && list.selectedItems().isEmpty())
        current->setSelected(true);
}

class list_box : public QListWidget {
public:
    list_box(int characters, int lines) : characters_(characters), lines_(lines) {}

    QSize sizeHint() const override { return size_for(characters_, lines_); }
    QSize minimumSizeHint() const override
    {
        return size_for(std::min(characters_, least_characters), std::min(lines_, least_lines));
    }

private:
    QSize size_for(int characters, int lines) const
    {
        const QFontMetrics font = fontMetrics();
        return {font.averageCharWidth() * characters + 4 * rhythm,
                font.lineSpacing() * lines + 2 * frameWidth()};
    }

    int characters_;
    int lines_;
};

}  // namespace

QListWidget* make_list_box(int characters, int lines)
{
    auto* list = new list_box(characters, lines);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    QObject::connect(list, &QListWidget::itemSelectionChanged, list, [list] { keep_selection(*list); });
    return list;
}

void fill_list_box(QListWidget& list, const QStringList& lines)
{
    list.addItems(lines);
    list.setCurrentRow(0);
}

void remove_selected_line(QListWidget& list)
{
    delete list.takeItem(list.currentRow());
    if (list.count() > 0)
        list.setCurrentRow(0);
}

}  // namespace verdane

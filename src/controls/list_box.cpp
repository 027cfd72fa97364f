#include "controls/list_box.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>
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

/// The text above the rows, as large as the view of the list.
class empty_text : public QLabel {
public:
    empty_text(QAbstractItemView& list, const QString& text)
        : QLabel(list.viewport()), list_(list), words_(text)
    {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAlignment(Qt::AlignCenter);
        setMargin(rhythm);
        setForegroundRole(QPalette::PlaceholderText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        list.viewport()->installEventFilter(this);
        const QAbstractItemModel* model = list.model();
        connect(model, &QAbstractItemModel::rowsInserted, this, [this] { update_text(); });
        connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { update_text(); });
        connect(model, &QAbstractItemModel::modelReset, this, [this] { update_text(); });
        update_text();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(list_.viewport()->rect());
        return QLabel::eventFilter(watched, event);
    }

private:
    void update_text()
    {
        const bool empty = list_.model()->rowCount() == 0;
        setGeometry(list_.viewport()->rect());
        setText(empty ? words_ : QString());
        setVisible(empty);
        list_.setAccessibleDescription(text());
    }

    QAbstractItemView& list_;
    const QString words_;
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

void show_text_when_empty(QAbstractItemView& list, const QString& text)
{
    new empty_text(list, text);
}

}  // namespace verdane

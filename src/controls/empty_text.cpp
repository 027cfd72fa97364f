#include "controls/empty_text.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>

#include "controls/look.h"

namespace verdane {

namespace {

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

void say_when_empty(QAbstractItemView& list, const QString& text)
{
    new empty_text(list, text);
}

}  // namespace verdane

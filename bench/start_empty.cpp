#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <cstdlib>

#include "bench/first_paint.h"

using namespace Qt::StringLiterals;

/// The least that a program with a window and a store can do: open the file, run a query, paint. With a
/// word as second argument the window shows that word, which makes the toolkit load its glyphs.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QSqlDatabase store = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    store.setDatabaseName(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    QSqlQuery rounds(store);
    if (!store.open() || !rounds.exec(u"select count(*) from games"_s) || !rounds.next())
        return EXIT_FAILURE;
    QMainWindow window;
    window.resize(1200, 800);
    if (argc > 2)
        window.setCentralWidget(new QLabel(QString::fromLocal8Bit(argv[2])));
    window.setObjectName(u"empty"_s);
    verdane::bench::end_when_painted(window.objectName(), 1);
    window.show();
    return QApplication::exec();
}

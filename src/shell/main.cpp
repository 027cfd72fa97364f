#include <QApplication>

#include "shell/start_up.h"

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    verdane::prepare_application(application);
    return verdane::run_verdane(application);
}

#include <QApplication>
#include <gtest/gtest.h>

#include "QtServices.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    InstallQtServices(app);   // style, palette and font as the game has them
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

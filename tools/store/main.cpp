#include "console.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char **argv)
{
    std::ios::sync_with_stdio(false);
    const QCoreApplication application(argc, argv);
    Console console{std::cin, std::cout, std::cerr};
    return runCommand(QCoreApplication::arguments(), console);
}

// orvane-make-book: a book of N invented contacts in a new file. See scripts/make-book.

#include "tools/book_generator.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    bool isNumber = false;
    const int count = arguments.value(1).toInt(&isNumber);
    if (arguments.size() != 3 || !isNumber || count < 0) {
        std::fputs(
            "Usage: make-book N FILE\n\nMakes FILE, a data database with N invented contacts.\n", stderr);
        return 2;
    }
    const QByteArray shown = arguments.last().toLocal8Bit();
    if (QFileInfo::exists(arguments.last())) {
        std::fprintf(stderr, "make-book: %s: there is a file already\n", shown.constData());
        return 1;
    }
    if (tools::makeBook(arguments.last(), count))
        return 0;
    std::fprintf(stderr, "make-book: %s: could not be written\n", shown.constData());
    return 1;
}

#include "transfer/cards/column_words.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

struct Word {
    QStringView column;
    const char* text;
};
constexpr Word kWords[] = {
    {u"Name", QT_TRANSLATE_NOOP("transfer", "Name")},
    {u"Nview", QT_TRANSLATE_NOOP("transfer", "Name view")},
    {u"Title", QT_TRANSLATE_NOOP("transfer", "Title")},
    {u"First", QT_TRANSLATE_NOOP("transfer", "First name")},
    {u"Last", QT_TRANSLATE_NOOP("transfer", "Last name")},
    {u"Mid", QT_TRANSLATE_NOOP("transfer", "Middle name")},
    {u"nick", QT_TRANSLATE_NOOP("transfer", "Nick name")},
    {u"Maiden", QT_TRANSLATE_NOOP("transfer", "Maiden name")},
    {u"sex", QT_TRANSLATE_NOOP("transfer", "Gender")},
    {u"Company", QT_TRANSLATE_NOOP("transfer", "Company")},
    {u"Job_Title", QT_TRANSLATE_NOOP("transfer", "Job title")},
    {u"Mobile", QT_TRANSLATE_NOOP("transfer", "Mobile")},
    {u"fax", QT_TRANSLATE_NOOP("transfer", "Fax")},
    {u"M_BD", QT_TRANSLATE_NOOP("transfer", "Birthday")},
    {u"Anniv", QT_TRANSLATE_NOOP("transfer", "Anniversary")},
    {u"Spouse", QT_TRANSLATE_NOOP("transfer", "Spouse")},
    {u"kid1", QT_TRANSLATE_NOOP("transfer", "First child")},
    {u"kid2", QT_TRANSLATE_NOOP("transfer", "Second child")},
    {u"kid3", QT_TRANSLATE_NOOP("transfer", "Third child")},
    {u"H_Ph1", QT_TRANSLATE_NOOP("transfer", "Home telephone 1")},
    {u"h_ph2", QT_TRANSLATE_NOOP("transfer", "Home telephone 2")},
    {u"h_ph3", QT_TRANSLATE_NOOP("transfer", "Home telephone 3")},
    {u"B_Ph1", QT_TRANSLATE_NOOP("transfer", "Work telephone 1")},
    {u"B_Ph2", QT_TRANSLATE_NOOP("transfer", "Work telephone 2")},
    {u"B_ph3", QT_TRANSLATE_NOOP("transfer", "Work telephone 3")},
    {u"w_Ph1", QT_TRANSLATE_NOOP("transfer", "Work 2 telephone 1")},
    {u"w_Ph2", QT_TRANSLATE_NOOP("transfer", "Work 2 telephone 2")},
    {u"w_ph3", QT_TRANSLATE_NOOP("transfer", "Work 2 telephone 3")},
    {u"H_email1", QT_TRANSLATE_NOOP("transfer", "Home e-mail 1")},
    {u"h_email2", QT_TRANSLATE_NOOP("transfer", "Home e-mail 2")},
    {u"b_email1", QT_TRANSLATE_NOOP("transfer", "Work e-mail 1")},
    {u"b_email2", QT_TRANSLATE_NOOP("transfer", "Work e-mail 2")},
    {u"w_email1", QT_TRANSLATE_NOOP("transfer", "Work 2 e-mail 1")},
    {u"W_Email2", QT_TRANSLATE_NOOP("transfer", "Work 2 e-mail 2")},
    {u"h_web", QT_TRANSLATE_NOOP("transfer", "Home web")},
    {u"B_Web", QT_TRANSLATE_NOOP("transfer", "Work web")},
    {u"W_web", QT_TRANSLATE_NOOP("transfer", "Work 2 web")},
    {u"category1", QT_TRANSLATE_NOOP("transfer", "Category")},
    {u"category2", QT_TRANSLATE_NOOP("transfer", "Sub category")},
    {u"memo1", QT_TRANSLATE_NOOP("transfer", "Note")},
    {u"Hobbies", QT_TRANSLATE_NOOP("transfer", "Hobbies")},
};

/// The six parts of the three addresses, behind their prefix.
constexpr Word kSets[] = {
    {u"h_", QT_TRANSLATE_NOOP("transfer", "Home %1")},
    {u"b_", QT_TRANSLATE_NOOP("transfer", "Work %1")},
    {u"w_", QT_TRANSLATE_NOOP("transfer", "Work 2 %1")},
};
constexpr Word kParts[] = {
    {u"add1", QT_TRANSLATE_NOOP("transfer", "street")},
    {u"add2", QT_TRANSLATE_NOOP("transfer", "street, second line")},
    {u"city", QT_TRANSLATE_NOOP("transfer", "city")},
    {u"state", QT_TRANSLATE_NOOP("transfer", "state")},
    {u"pin", QT_TRANSLATE_NOOP("transfer", "pin")},
    {u"country", QT_TRANSLATE_NOOP("transfer", "country")},
};

template <std::size_t count> QString wordIn(const Word (&words)[count], QStringView column)
{
    for (const Word& word : words) {
        if (word.column.compare(column, Qt::CaseInsensitive) == 0)
            return QCoreApplication::translate("transfer", word.text);
    }
    return {};
}

} // namespace

QString columnWord(QStringView column)
{
    const QString word = wordIn(kWords, column);
    const QString set = wordIn(kSets, column.left(2));
    const QString part = wordIn(kParts, column.mid(2));
    if (word.isEmpty() && !set.isEmpty() && !part.isEmpty())
        return set.arg(part);
    return word.isEmpty() ? column.toString() : word;
}

} // namespace transfer

#include "telephone/replacer/replacement.h"

#include "core/sql_text.h"
#include "telephone/search/number_union.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

struct Caption {
    QStringView column;
    const char* text;
};
constexpr Caption kCaptions[] = {
    {u"h_ph1", QT_TRANSLATE_NOOP("telephone", "Home, first number")},
    {u"h_ph2", QT_TRANSLATE_NOOP("telephone", "Home, second number")},
    {u"h_ph3", QT_TRANSLATE_NOOP("telephone", "Home, third number")},
    {u"b_ph1", QT_TRANSLATE_NOOP("telephone", "Work 2, first number")},
    {u"b_ph2", QT_TRANSLATE_NOOP("telephone", "Work 2, second number")},
    {u"b_ph3", QT_TRANSLATE_NOOP("telephone", "Work 2, third number")},
    {u"w_ph1", QT_TRANSLATE_NOOP("telephone", "Work 1, first number")},
    {u"w_ph2", QT_TRANSLATE_NOOP("telephone", "Work 1, second number")},
    {u"w_ph3", QT_TRANSLATE_NOOP("telephone", "Work 1, third number")},
    {u"mobile", QT_TRANSLATE_NOOP("telephone", "Mobile")},
    {u"sp_mobile", QT_TRANSLATE_NOOP("telephone", "Spouse's mobile")},
    {u"h_std", QT_TRANSLATE_NOOP("telephone", "Home, code")},
    {u"b_std", QT_TRANSLATE_NOOP("telephone", "Work 2, code")},
    {u"w_std", QT_TRANSLATE_NOOP("telephone", "Work 1, code")},
    {u"h_city", QT_TRANSLATE_NOOP("telephone", "Home, city")},
    {u"b_city", QT_TRANSLATE_NOOP("telephone", "Work 2, city")},
    {u"w_city", QT_TRANSLATE_NOOP("telephone", "Work 1, city")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("telephone", text);
}

// Kept: nine characters of the rest stay, so that a longer number is cut.
QList<ColumnChange> numberChanges(const QString& from, const QString& to, const QString& city)
{
    QList<ColumnChange> changes;
    for (const SearchedSlot& slot : searchedSlots()) {
        const QString column = slot.column.toString();
        const QString inCity
            = city.isEmpty() ? QString() : u" and "_s + slot.city.toString() + u" = '"_s + city + u'\'';
        const QString value = u'\'' + to + u"' & mid("_s + column + u",len(trim('"_s + from + u"'))+1, 9)"_s;
        const QString condition = column + u" like  '"_s + from + u"*'"_s + inCity;
        changes << ColumnChange{column, value, condition,
            u"update cnt_main set "_s + column + u" = "_s + value + u"  where "_s + condition};
    }
    return changes;
}

// Kept: the rest is taken two places behind the old code, as long as that is without zeros in front, and at
// work too from the code at home, which the first statement has changed by then.
QList<ColumnChange> codeChanges(const QString& from, const QString& to)
{
    const auto valueOf = [&](const QString& source) {
        return u'\'' + to + u"' & mid("_s + source + u",len(trim("_s + from + u"))+2, 9)"_s;
    };
    const auto isChanged = [&](const QString& column) { return column + u" like  '"_s + from + u"*'"_s; };
    const QString home = u"h_std"_s;
    const QString homeLater = u"iif("_s + isChanged(home) + u',' + valueOf(home) + u",h_std)"_s;
    QList<ColumnChange> changes;
    for (const QString& column : {home, u"b_std"_s, u"w_std"_s}) {
        changes << ColumnChange{column, valueOf(column == home ? home : homeLater), isChanged(column),
            u"update cnt_main set "_s + column + u" = "_s + valueOf(home) + u"  where "_s
                + isChanged(column)};
    }
    return changes;
}

// Kept: a city that only begins so is rewritten whole.
QList<ColumnChange> cityChanges(const QString& from, const QString& to)
{
    QList<ColumnChange> changes;
    for (const QString& column : {u"h_city"_s, u"w_city"_s, u"b_city"_s}) {
        const QString condition = column + u" like '"_s + from + u"*'"_s;
        changes << ColumnChange{column, u'\'' + to + u'\'', condition,
            u"Update cnt_main set "_s + column + u" ='"_s + to + u"' where "_s + condition};
    }
    return changes;
}

bool isBrokenPattern(const QString& from)
{
    const qsizetype open = from.indexOf(u'[');
    return open >= 0 && from.indexOf(u']', open) < 0;
}

} // namespace

QList<ColumnChange> columnChanges(const Replacement& replacement)
{
    const QString from = core::inQuotes(replacement.from);
    const QString to = core::inQuotes(replacement.to);
    switch (replacement.part) {
    case ReplacedPart::Numbers: return numberChanges(from, to, core::inQuotes(replacement.city));
    case ReplacedPart::Codes: return codeChanges(from, to);
    case ReplacedPart::Cities: break;
    }
    return cityChanges(from, to);
}

QString whyNotReplaced(const Replacement& replacement)
{
    // It stands in the statement as a number, or as a sum of numbers.
    static const QRegularExpression sum(u"^[-+]?\\d+(\\.\\d+)?([-+]\\d+(\\.\\d+)?)*$"_s);
    if (replacement.part == ReplacedPart::Codes && !sum.match(replacement.from.trimmed()).hasMatch())
        return translated("The old code may hold digits only, with + or - between or in front of them.");
    if (isBrokenPattern(replacement.from))
        return translated("The old text has an opening bracket [ without a closing one. Brackets stand for "
                          "one of the letters between them; leave the bracket out.");
    return {};
}

bool isPattern(const QString& from)
{
    return std::ranges::any_of(from, [](QChar letter) { return u"*?#[]"_s.contains(letter); });
}

Replaced replaceAll(jet::Database& book, const Replacement& replacement)
{
    const jet::Step step(book, translated("replacing %1 by %2").arg(replacement.from, replacement.to));
    jet::Batch batch(book);
    Replaced replaced;
    for (const ColumnChange& change : columnChanges(replacement)) {
        const jet::Outcome outcome = book.execute(change.statement);
        if (!outcome.ok)
            return {};
        replaced.rows += outcome.changed;
    }
    replaced.isStored = batch.commit();
    return replaced;
}

// One walk through the book counts all columns; what is cut is read of the columns that have some.
ReplacementPreview previewOf(jet::Database& book, const Replacement& replacement)
{
    const QList<ColumnChange> changes = columnChanges(replacement);
    const QString rest = QString::number(replacement.from.trimmed().size() + 1);
    QStringList cuts;
    QStringList counted;
    for (const ColumnChange& change : changes) {
        const QString whole
            = u'\'' + core::inQuotes(replacement.to) + u"' & mid("_s + change.column + u',' + rest + u')';
        cuts << change.condition + u" and "_s + change.value + u" <> "_s + whole;
        for (const QString& condition : {change.condition, cuts.constLast()})
            counted << u"count(iif("_s + condition + u",1,null))"_s;
    }
    const jet::Recordset counts = book.openRecordset(u"select "_s + counted.join(u',') + u" from cnt_main"_s);
    ReplacementPreview preview;
    for (qsizetype at = 0; counts.hasRow() && at < changes.size(); ++at) {
        const ColumnChange& change = changes[at];
        const int rows = counts.textAt(int(2 * at)).toInt();
        const int cutRows = counts.textAt(int(2 * at + 1)).toInt();
        if (rows > 0)
            preview.counts << ReplacementPreview::Count{change.column, rows};
        preview.rows += rows;
        preview.cutCount += cutRows;
        if (cutRows == 0 || preview.cut.size() >= kShownCuts)
            continue;
        const jet::Recordset cut = book.openRecordset(u"select name,"_s + change.column + u" as before,"_s
            + change.value + u" as after from cnt_main where "_s + cuts[at]);
        for (int row = 0; row < cut.count() && preview.cut.size() < kShownCuts; ++row)
            preview.cut << CutText{cut.textAt(row, 0), change.column, cut.textAt(row, 1), cut.textAt(row, 2)};
    }
    return preview;
}

int longestNew(ReplacedPart part, const jet::Schema& schema)
{
    constexpr int kRest = 9;
    switch (part) {
    case ReplacedPart::Numbers: return schema.textSize(u"cnt_main", u"h_ph1") - kRest;
    case ReplacedPart::Codes: return schema.textSize(u"cnt_main", u"h_std") - kRest;
    case ReplacedPart::Cities: break;
    }
    return schema.textSize(u"cnt_main", u"h_city");
}

QString captionOf(const QString& column)
{
    const auto found
        = std::ranges::find_if(kCaptions, [&](const Caption& row) { return row.column == column; });
    return found == std::end(kCaptions) ? column : translated(found->text);
}

} // namespace telephone

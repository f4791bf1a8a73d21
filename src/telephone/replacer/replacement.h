#pragma once

#include "jet/database.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace telephone {

/// What a change of a numbering plan changes in all contacts.
enum class ReplacedPart { Numbers, Codes, Cities };

struct Replacement {
    ReplacedPart part = ReplacedPart::Numbers;
    QString from; ///< with which the old text begins
    QString to;
    QString city = {}; ///< of numbers: only those of this city; blank for all
};

/// What is done to one column, and the pieces of that statement by which one can look at it before.
struct ColumnChange {
    QString column;
    QString value; ///< the new text, as an expression
    QString condition;
    QString statement;
};
/// In the order in which they are run.
QList<ColumnChange> columnChanges(const Replacement& replacement);

/// Why the statements would fail, for a person; empty when they can be run.
QString whyNotReplaced(const Replacement& replacement);
/// Whether letters of the old text stand for others.
bool isPattern(const QString& from);

struct Replaced {
    bool isStored = false; ///< all of it; else nothing was changed
    int rows = 0; ///< changed by the statements, all columns together
};
/// Runs the statements: all or none, one step to take back.
Replaced replaceAll(jet::Database& book, const Replacement& replacement);

/// A text that ends otherwise than it did, since its end is cut or comes from elsewhere.
struct CutText {
    QString name; ///< of the contact
    QString column;
    QString before;
    QString after;
};

/// What a replacement will do.
struct ReplacementPreview {
    struct Count {
        QString column;
        int rows = 0;
    };
    QList<Count> counts; ///< of the columns that change
    int rows = 0;
    QList<CutText> cut; ///< no more than kShownCuts of them
    int cutCount = 0;
};
inline constexpr int kShownCuts = 1000;
ReplacementPreview previewOf(jet::Database& book, const Replacement& replacement);

/// How many characters the new text may have, so that with the rest of the old one it fits its columns.
int longestNew(ReplacedPart part, const jet::Schema& schema);

/// What a person calls a column.
QString captionOf(const QString& column);

} // namespace telephone

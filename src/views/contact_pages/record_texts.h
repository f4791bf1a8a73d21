#pragma once

#include "jet/recordset.h"

#include <QDate>

namespace views {

/// What a control shows of a contact.
struct ShownText {
    QString control;
    QString text;
};

/// The texts of the full view for the current row of "select * from cnt_main"; a null column counts as empty.
QList<ShownText> fullViewTexts(const jet::Recordset& row, bool nationalMode);

/// The texts of the lighter page in the record selector, with the ages of this year.
QList<ShownText> detailViewTexts(const jet::Recordset& row, bool nationalMode, QDate today);

/// The texts of the panel below the results of a tree search.
QList<ShownText> resultDetailTexts(const jet::Recordset& row);

/// The caption of an association button, and the name that stands in such a caption.
QString associationCaption(const QString& name);
QString nameInAssociation(const QString& caption);

} // namespace views

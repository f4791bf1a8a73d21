#pragma once

#include "jet/database.h"

#include <QObject>

class QWidget;

namespace entry {

/// The three fields of an entry form whose meaning is the user's own: a click on a label renames it, a new
/// value joins the list of its field. A form without these fields has none to wire.
class UserFields : public QObject {
    Q_OBJECT

public:
    UserFields(QWidget* form, jet::Database& data);

    /// The labels of the settings, or the plain ones where there is none.
    void showLabels();

private:
    void rename(int number);
    void keepLabel();
    void keepValue(int number, const QString& value);

    QWidget* m_form;
    jet::Database& m_data;
    int m_renamed = 0; ///< the field whose new label is being typed
};

} // namespace entry

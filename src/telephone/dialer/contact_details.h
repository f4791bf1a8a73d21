#pragma once

#include "core/context.h"

#include <QTabWidget>

class QLabel;

namespace widgets {
class HeadingGrid;
class PictureBox;
} // namespace widgets

namespace telephone {

/// What is good to know of the person during a call: family with birthdays, work, notes, and the calls
/// before.
class ContactDetails : public QTabWidget {
    Q_OBJECT

public:
    explicit ContactDetails(core::Context& context, QWidget* parent = nullptr);

    /// A person who is gone leaves what is shown as it is.
    void showContact(qint64 id);
    void clearContact();
    void showCalls(const QString& name);
    void setCaption(const QString& caption); ///< above the calls

private:
    core::Context& m_context;
    widgets::PictureBox* m_picture;
    widgets::HeadingGrid* m_calls;
    QLabel* Label28 = nullptr;
};

/// A child with its birthday behind the name.
QString childText(const QString& name, const QDate& birthday);
/// An address in one line; what is empty is left out.
QString addressLine(const QStringList& parts);

} // namespace telephone

#pragma once

#include <QTabWidget>

namespace views {

/// The tabs of the full view on which a contact can be read.
class FullViewPages : public QTabWidget {
    Q_OBJECT

public:
    explicit FullViewPages(QWidget* parent = nullptr);

private:
    QWidget* addPage(const QString& name, const QString& title, QStringView icon);
    void layOutDetails();
    void layOutAddresses();
    void layOutTelephones();
    void layOutMail();
    void layOutFamily();
};

} // namespace views

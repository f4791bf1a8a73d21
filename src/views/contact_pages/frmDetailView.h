#pragma once

#include "core/handover/contact_screen.h"
#include "core/screen.h"

namespace views {

/// A lighter page of one contact to read, for the record selector and for itself.
class frmDetailView : public core::Screen, public core::ContactScreen {
    Q_OBJECT

public:
    explicit frmDetailView(core::Context& context, QWidget* parent = nullptr);

    void load() override { }
    bool showContact(qint64 id) override;

Q_SIGNALS:
    void associateShown(qint64 id); ///< the page went to another contact by itself

private:
    qint64 m_id = 0;

    QWidget* layOutHead();
    void layOutContact(QWidget* page);
    void layOutFamily(QWidget* page);
    void layOutBusiness(QWidget* page);
    void goToAssociate(const QString& caption);
};

} // namespace views

#include "entry/form/photo_field.h"

#include "core/photo_file.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/picture_box.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace entry {

PhotoField::PhotoField(QWidget* form, core::Context& context)
    : QObject(form)
    , m_form(form)
    , m_context(context)
{
    child<QLabel>(form, u"lblPhoto"_s)->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (const QString& button : {u"SSCommand9"_s, u"CmdPhto"_s})
        connect(child<QPushButton>(form, button), &QPushButton::clicked, this, &PhotoField::choose);
    connect(child<QPushButton>(form, u"cmdNoPhoto"_s), &QPushButton::clicked, this, [this] { show({}); });
}

void PhotoField::load(const QString& stored)
{
    show(stored);
    m_loaded = stored;
}

void PhotoField::show(const QString& path)
{
    m_path = path;
    m_isChosen = false;
    child<widgets::PictureBox>(m_form, u"Photo"_s)->setPath(core::photoFile(m_context.services.drive, path));
    widgets::setTextOf(child<QLabel>(m_form, u"lblPhoto"_s), path);
}

void PhotoField::choose()
{
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const auto chosen = boxes.openFile(tr("Select Picture"),
        tr("Pictures") + u" (*.png *.jpg *.jpeg *.bmp *.gif *.webp)|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.webp"_s);
    if (!chosen)
        return;
    const QPointer<PhotoField> field(this); // the form may close while the picture is read
    const bool isPicture = !widgets::readPictureAside(*chosen, {64, 64}).isNull();
    if (!field)
        return;
    if (!isPicture)
        return boxes.warning(tr("This file is no picture that can be shown."), m_context.shared.AppTitle);
    show(*chosen);
    m_isChosen = true;
}

// Nothing is copied or moved where nothing was chosen.
core::StoredFile PhotoField::store() const
{
    if (!m_isChosen)
        return core::StoredFile(m_path);
    return core::StoredFile(
        m_context.services.drive, core::kPhotoFolder, m_path, m_context.shared.PhotoStoreMode);
}

} // namespace entry

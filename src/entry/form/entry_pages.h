#pragma once

#include "widgets/form_kit.h"

#include <QWidget>

#include <functional>

namespace widgets {
class PictureBox;
}

namespace entry {

/// The pages of an entry form. Each is laid out by a function of its own and knows no behaviour; the form
/// wires the controls by their names.
using SizeOf = widgets::FormKit::SizeOf;

/// Name, class, home address, telephones and e-mail.
QWidget* contactPage(const SizeOf& sizeOf);
QWidget* workOnePage(const SizeOf& sizeOf);
QWidget* workTwoPage(const SizeOf& sizeOf);
/// The only work page of the brief form: address and telephones of Work 2, and what stands on Work 1
/// otherwise.
QWidget* briefWorkPage(const SizeOf& sizeOf);
/// Family, dates, the person's own classes, the user's fields and the note.
QWidget* personalPage(const SizeOf& sizeOf);
/// The same without the user's fields.
QWidget* briefPersonalPage(const SizeOf& sizeOf);
QWidget* picturePage(const SizeOf& sizeOf);

/// What stands above the pages: the mode, the number and the name of the contact, and the progress of a save.
QWidget* entryHead();
/// The commands of a form, below the pages.
QWidget* entryButtons();

} // namespace entry

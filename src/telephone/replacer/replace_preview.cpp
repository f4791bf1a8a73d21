#include "telephone/replacer/replace_preview.h"

#include "core/frame.h"
#include "core/save_failure.h"
#include "core/sound_files.h"
#include "core/take_back.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr auto kSetting = "replacer/preview";
constexpr QSize kDialogSize{720, 560};
constexpr QSize kSmallDialogSize{480, 400};

QString translated(const char* text)
{
    return QCoreApplication::translate("telephone", text);
}

QString settingsFile(const core::Context& context)
{
    return context.services.drive.programFolder() + u"/telephone.ini"_s;
}

bool showsPreview(const core::Context& context)
{
    return QSettings(settingsFile(context), QSettings::IniFormat).value(kSetting, true).toBool();
}

QString headlineOf(ReplacedPart part, const ReplacementPreview& preview)
{
    if (preview.cutCount == 0)
        return translated("None of them loses anything but its old beginning.");
    const QString text = (part == ReplacedPart::Numbers ? translated("%1 of them lose digits at their end:")
                                                        : translated("%1 of them end otherwise than before:"))
                             .arg(preview.cutCount);
    return preview.cutCount <= preview.cut.size()
        ? text
        : text + u' ' + translated("(the first %1)").arg(preview.cut.size());
}

widgets::HeadingGrid* countGrid(const ReplacementPreview& preview)
{
    QList<QStringList> rows;
    for (const ReplacementPreview::Count& count : preview.counts)
        rows << QStringList{captionOf(count.column), QString::number(count.rows)};
    auto* grid = new widgets::HeadingGrid;
    grid->setHeadings(
        u'|' + translated("Where") + u"                                |"_s + translated("Changes"));
    grid->setRows(rows, {u"where"_s, u"changes"_s});
    grid->setContextMenuPolicy(Qt::NoContextMenu);
    return grid;
}

widgets::HeadingGrid* cutGrid(const ReplacementPreview& preview)
{
    QList<QStringList> rows;
    for (const CutText& text : preview.cut)
        rows << QStringList{text.name, captionOf(text.column), text.before, text.after};
    auto* grid = new widgets::HeadingGrid;
    const QStringList headings{translated("Name") + u"                        "_s,
        translated("Where") + u"                 "_s, translated("Old") + u"                "_s,
        translated("New") + u"                "_s};
    grid->setHeadings(u'|' + headings.join(u'|'));
    grid->setRows(rows, {u"name"_s, u"where"_s, u"before"_s, u"after"_s});
    grid->setContextMenuPolicy(Qt::NoContextMenu);
    return grid;
}

bool confirm(
    core::Context& context, const Replacement& replacement, const ReplacementPreview& preview, QWidget* over)
{
    QDialog dialog(over);
    dialog.setObjectName(u"ReplacePreview"_s);
    dialog.setWindowTitle(translated("Replace %1 by %2").arg(replacement.from, replacement.to));
    dialog.resize(preview.cutCount > 0 ? kDialogSize : kSmallDialogSize);
    widgets::FormKit form(&dialog);
    form.group().caption(u"lblChanges"_s, translated("%1 entries will change:").arg(preview.rows));
    if (isPattern(replacement.from))
        form.caption(u"lblPattern"_s,
            translated("In the old text * stands for any letters, ? for one, # for a digit, and brackets for "
                       "one of the letters between them."));
    form.wide(u"FGCounts"_s, translated("What changes"), countGrid(preview))
        .caption(u"lblCut"_s, headlineOf(replacement.part, preview));
    if (preview.cutCount > 0)
        form.wide(u"FGCut"_s, translated("What ends otherwise than before"), cutGrid(preview));
    QCheckBox* again = makePreviewBox(context, &dialog);
    form.wide(u"ChkPreview"_s, again->text(), again);
    form.buttonRow()
        .stretch()
        .button(u"CmdOk"_s, translated("&Replace"), u"save", translated("Change these entries"))
        .button(u"CmdCancel"_s, translated("Cancel"), u"cancel", translated("Change nothing (Esc)"));
    auto* cancel = child<QPushButton>(&dialog, u"CmdCancel"_s);
    QObject::connect(
        child<QPushButton>(&dialog, u"CmdOk"_s), &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    cancel->setDefault(true);
    cancel->setFocus();
    return dialog.exec() == QDialog::Accepted;
}

QString nothingBeginsSo(const Replacement& replacement)
{
    return translated("Nothing begins with %1, so nothing was changed.").arg(replacement.from);
}

} // namespace

QCheckBox* makePreviewBox(core::Context& context, QWidget* parent)
{
    auto* box = new QCheckBox(translated("Show what will change before replacing"), parent);
    box->setObjectName(u"ChkPreview"_s);
    box->setToolTip(translated("Show what will change before it is changed"));
    box->setChecked(showsPreview(context));
    QObject::connect(box, &QCheckBox::toggled, box, [file = settingsFile(context)](bool on) {
        QSettings(file, QSettings::IniFormat).setValue(kSetting, on);
    });
    return box;
}

void followPreviewSetting(const core::Context& context, QCheckBox* box)
{
    const QSignalBlocker quiet(box);
    box->setChecked(showsPreview(context));
}

bool replaceWithPreview(core::Context& context, const Replacement& replacement, QWidget* over)
{
    platform::MessageBoxes& boxes = context.services.boxes;
    const QString& title = context.shared.AppTitle;
    const QString why = whyNotReplaced(replacement);
    if (!why.isEmpty()) {
        boxes.warning(why, title);
        return false;
    }
    if (showsPreview(context)) {
        const ReplacementPreview preview = previewOf(context.data, replacement);
        if (preview.rows > 0 && !confirm(context, replacement, preview, over))
            return false;
    }
    const Replaced replaced = replaceAll(context.data, replacement);
    if (!replaced.isStored) {
        core::tellFailedSave(context);
        return false;
    }
    if (replaced.rows == 0) {
        boxes.information(nothingBeginsSo(replacement), title);
        return false;
    }
    context.services.sounds.play(core::sounds::Save);
    const QString text = translated("Replaced %1 by %2 in %3 places")
                             .arg(replacement.from, replacement.to, QString::number(replaced.rows));
    if (const auto step = context.data.lastChange())
        context.frame.showNotice(text, translated("Undo"),
            [&context, id = step->id] { core::takeBack(context, jet::StepDirection::Back, id); });
    else
        context.frame.showNotice(text);
    return true;
}

} // namespace telephone

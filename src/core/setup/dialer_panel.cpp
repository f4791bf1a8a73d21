#include "core/setup/dialer_panel.h"

#include "core/setup/setup_settings.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;
using widgets::KeyFilter;

namespace setup {

namespace {

constexpr int kWidth = 460;

struct PrefixRow {
    QStringView control;
    QStringView column;
    const char* label;
};
constexpr PrefixRow kPrefixes[] = {
    {u"txtprefix1", u"Prefix1", QT_TRANSLATE_NOOP("setup", "Prefix &1")},
    {u"txtprefix2", u"Prefix2", QT_TRANSLATE_NOOP("setup", "Prefix &2")},
    {u"txtprefix3", u"Prefix3", QT_TRANSLATE_NOOP("setup", "Prefix &3")},
    {u"txtpbx", u"PBX", QT_TRANSLATE_NOOP("setup", "&PBX (outside line)")},
};

} // namespace

DialerPanel::DialerPanel(core::Context& context, QWidget* parent)
    : core::SetupPanel(context, parent)
    , m_hint(core::makeHint(u"lblDialHint"_s))
{
    const Switch& city = switchOf(u"chkDialerCity");
    widgets::FormKit form(
        this, [this](QStringView column) { return this->context().schema.textSize(u"cntb_setup", column); });
    form.group(tr("Dialled before a number"));
    for (const PrefixRow& row : kPrefixes)
        form.line(row.control.toString(), QCoreApplication::translate("setup", row.label),
            row.column.toString(), KeyFilter::NoApostrophe);
    form.button(u"SSCommand37"_s, tr("&Save"), u"save", tr("Store the prefixes"))
        .wide(m_hint->objectName(), tr("Hint"), m_hint)
        .group(tr("Home city"))
        .check(city.control.toString(), QCoreApplication::translate("setup", city.caption));
    setMaximumWidth(kWidth);
    chkDialerCity = child<QCheckBox>(this, city.control.toString());
    chkDialerCity->setToolTip(tr("Written at once"));
    m_shown = texts();
    connect(child<QPushButton>(this, u"SSCommand37"_s), &QPushButton::clicked, this, &DialerPanel::save);
    connect(chkDialerCity, &QCheckBox::clicked, this, &DialerPanel::writeCitySwitch);
    for (const PrefixRow& row : kPrefixes) {
        auto* line = child<QLineEdit>(this, row.control.toString());
        connect(line, &QLineEdit::returnPressed, this, &DialerPanel::save);
        connect(line, &QLineEdit::textEdited, m_hint, &QLabel::clear);
    }
}

void DialerPanel::refresh()
{
    const jet::Recordset settings = data().openRecordset(settingsSql());
    for (const PrefixRow& row : kPrefixes)
        widgets::setTextOf(child<QLineEdit>(this, row.control.toString()), settings.textOrEmpty(row.column));
    chkDialerCity->setChecked(settings.flag(u"DialerCity"));
    m_shown = texts();
    m_hint->clear();
}

QStringList DialerPanel::texts() const
{
    QStringList all;
    for (const PrefixRow& row : kPrefixes)
        all << child<QLineEdit>(this, row.control.toString())->text();
    return all;
}

bool DialerPanel::isTouched() const
{
    return texts() != m_shown;
}

QString DialerPanel::text(const QString& control) const
{
    return child<QLineEdit>(this, control)->text().trimmed();
}

void DialerPanel::save()
{
    const DialPrefixes prefixes{
        text(u"txtprefix1"_s), text(u"txtprefix2"_s), text(u"txtprefix3"_s), text(u"txtpbx"_s)};
    const jet::Step step(data(), tr("a change of the settings"));
    if (data().execute(dialPrefixesSql(prefixes)).changed == 0)
        return m_hint->setText(notStored(tr("The prefixes could not be stored.")));
    m_shown = texts();
    playSound(u"save");
    m_hint->setText(tr("Saved."));
}

void DialerPanel::writeCitySwitch(bool on)
{
    const jet::Step step(data(), tr("a change of the settings"));
    if (!data().execute(switchSql(switchOf(u"chkDialerCity"), on)))
        m_hint->setText(notStored(tr("The choice could not be stored.")));
}

} // namespace setup

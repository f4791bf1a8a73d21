#include "formats/card_slots.h"
#include "formats/card_writer.h"

#include <QBuffer>
#include <QFile>

#include <cstdlib>

/// Any bytes as a file of cards: it ends, small limits hold, and a contact that was read of it is written and
/// read again as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const formats::CardColumns columns = [] {
        QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/data/schema.csv"));
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        const jet::Schema schema = jet::Schema::fromCsv(file.readAll());
        return formats::CardColumns(*schema.table(u"cnt_main"), {QStringLiteral("First,Last")});
    }();
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const formats::CardLimits limits{.textLine = 300, .binaryLine = 600, .card = 1500, .properties = 20};
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    formats::ForeignCardReader reader(file, {}, limits);
    while (auto card = reader.next()) {
        if (card->properties.size() > 20)
            std::abort();
        const formats::CardContact contact = formats::contactOf(*card, columns);
        // A carriage return in a value that this program itself has encoded comes back as a line feed.
        QByteArray written = formats::cardOf(contact, formats::CardVersion::Four);
        QBuffer again(&written);
        again.open(QIODevice::ReadOnly);
        const auto back = formats::ForeignCardReader(again).next();
        if (!back || !back->hasEnd
            || formats::contactOf(*back, columns).values.size() < contact.values.size())
            std::abort();
    }
    return 0;
}

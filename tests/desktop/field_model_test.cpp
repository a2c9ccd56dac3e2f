#include "desktop/tools/field_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTreeView>
#include <array>
#include <random>

#include "desktop/shown_tip.h"
#include "desktop/tools/field_filter.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

using desktop::FieldModel;

fields::Reading readingOf(const std::string& bytes) {
    return fields::read(*Image::fromBytes(bytes));
}

std::string sample() {
    return TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.bin");
}

std::string withByte(std::string bytes, std::size_t number, int value) {
    bytes[number] = static_cast<char>(value);
    return bytes;
}

/// The line at the end of the labels, from the block down.
QModelIndex line(const QAbstractItemModel& model, const QStringList& labels) {
    QModelIndex found;
    for (const QString& label : labels) {
        QModelIndex next;
        for (int row = 0; row < model.rowCount(found); ++row) {
            const QModelIndex candidate = model.index(row, 0, found);
            if (candidate.data().toString() == label) {
                next = candidate;
            }
        }
        if (!next.isValid()) {
            return {};
        }
        found = next;
    }
    return found;
}

QString valueAt(const QAbstractItemModel& model, const QStringList& labels) {
    return line(model, labels).siblingAtColumn(FieldModel::Value).data().toString();
}

const QStringList pixelClock{"Block 0: base EDID", "Detailed timing 1", "Pixel clock"};

TEST(FieldModel, ToolTipsAreLabelAndValueAsTheyAre) {
    for (const std::string name : {"R&D \"3\"", "<b>LCD</b>"}) {
        std::string bytes = sample();
        bytes.replace(95, 13, (name + '\n' + std::string(12, ' ')).substr(0, 13)); // the name of the monitor
        FieldModel model;
        const fields::Reading reading = readingOf(bytes);
        model.show(&reading);
        const QModelIndex text = model.indexOf(*fields::fieldAt(reading, 95, 0));
        ASSERT_NE(text.siblingAtColumn(FieldModel::Value).data().toString().toStdString().find(name),
                  std::string::npos);
        EXPECT_EQ(shownTip(text.data(Qt::ToolTipRole).toString()),
                  QString(text.data().toString() + ": " + text.siblingAtColumn(FieldModel::Value).data().toString())
                      .toStdString());
    }
}

TEST(FieldModel, HasBlocksGroupsAndFields) {
    FieldModel model;
    const fields::Reading reading = readingOf(sample());
    model.show(&reading);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, 0).data(), "Block 0: base EDID");
    EXPECT_EQ(model.index(0, 1).data(), "check sum ok");
    EXPECT_EQ(model.index(1, 0).data(), "Block 1: CTA-861 extension");
    EXPECT_EQ(valueAt(model, pixelClock), "148.50 MHz"); // 3A02h steps of 10 kHz
    EXPECT_EQ(line(model, pixelClock).siblingAtColumn(FieldModel::Bytes).data(), "37+36");
    EXPECT_EQ(valueAt(model, {"Block 0: base EDID", "Check sum"}), "196"); // C4h
    EXPECT_EQ(model.parent(line(model, pixelClock)).data(), "Detailed timing 1");
    const QModelIndex offset =
        line(model, {"Block 1: CTA-861 extension", "Header", "Offset of the first detailed timing"});
    EXPECT_EQ(offset.siblingAtColumn(FieldModel::Value).data(), "29");
    EXPECT_EQ(offset.siblingAtColumn(FieldModel::Bytes).data(), "02") << "counted as the cells of its screen are";
}

TEST(FieldModel, HasEachFieldOnce) {
    FieldModel model;
    const fields::Reading reading = readingOf(sample());
    model.show(&reading);
    for (const fields::Field& field : reading.fields) {
        const desktop::FieldNode* node = FieldModel::nodeAt(model.indexOf(field));
        ASSERT_NE(node, nullptr) << field.path;
        EXPECT_EQ(node->label.toStdString(), field.label) << field.path;
        EXPECT_EQ(node->value.toStdString(), field.text) << field.path;
    }
}

TEST(FieldModel, TellsOfAMissingBlock) {
    FieldModel model;
    const fields::Reading reading = readingOf(sample().substr(0, 128));
    model.show(&reading);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(1, 0).data(), "Block 1: missing extension");
    EXPECT_EQ(model.index(1, 1).data(), "announced, not there");
}

TEST(FieldModel, ChangesNothingButTheLinesThatDiffer) {
    FieldModel model;
    const fields::Reading before = readingOf(sample());
    model.show(&before);
    const QPersistentModelIndex clock = line(model, pixelClock);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    const fields::Reading after = readingOf(withByte(sample(), 54, 0x00));
    model.show(&after);
    EXPECT_EQ(clock.sibling(clock.row(), FieldModel::Value).data(), "148.48 MHz");
    EXPECT_EQ(changed.count(), 2) << "the clock, and the sum of the block, which is wrong now";
    EXPECT_EQ(inserted.count(), 0);
    EXPECT_EQ(removed.count(), 0);
    EXPECT_EQ(model.index(0, 1).data(), "check sum wrong");
}

TEST(FieldModel, KeepsTheLinesAroundThoseThatGo) {
    FieldModel model;
    const fields::Reading before = readingOf(sample());
    model.show(&before);
    const QPersistentModelIndex second = line(model, {"Block 0: base EDID", "Detailed timing 2", "Pixel clock"});
    const QPersistentModelIndex sum = line(model, {"Block 0: base EDID", "Check sum"});
    const QPersistentModelIndex clock = line(model, pixelClock);
    const fields::Reading after = readingOf(withByte(withByte(sample(), 54, 0), 55, 0)); // makes a descriptor of it
    model.show(&after);
    EXPECT_FALSE(clock.isValid());
    EXPECT_EQ(second.sibling(second.row(), FieldModel::Value).data(), "74.25 MHz");
    EXPECT_TRUE(sum.isValid());
    EXPECT_TRUE(line(model, {"Block 0: base EDID", "Descriptor 1", "Kind of descriptor"}).isValid());
    model.show(&before);
    EXPECT_EQ(valueAt(model, pixelClock), "148.50 MHz");
    EXPECT_TRUE(second.isValid());
}

TEST(FieldModel, GoesFromImageToImageAndToNone) {
    FieldModel model;
    for (const char* name : {"norvixan-nx3d.bin", "halvorine-hv19.bin", "ortheline-studio.bin", "zarqo-z40.bin"}) {
        const fields::Reading reading =
            readingOf(TemporaryFolder::read(std::string(WORKBENCH_SOURCE_DIR "/samples/") + name));
        model.show(&reading);
        FieldModel fresh;
        fresh.show(&reading);
        for (const fields::Field& field : reading.fields) {
            const QModelIndex shown = model.indexOf(field);
            ASSERT_TRUE(shown.isValid()) << field.path;
            EXPECT_EQ(shown.row(), fresh.indexOf(field).row()) << field.path;
            EXPECT_EQ(model.index(shown.row(), 0, model.parent(shown)), shown) << field.path;
        }
    }
    model.show(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(FieldModel, SaysInWhichNumbersTheBytesAre) {
    const FieldModel model;
    EXPECT_EQ(model.headerData(FieldModel::Bytes, Qt::Horizontal, Qt::DisplayRole), "Bytes");
    EXPECT_TRUE(
        model.headerData(FieldModel::Bytes, Qt::Horizontal, Qt::ToolTipRole).toString().contains("hexadecimal"));
    EXPECT_EQ(model.headerData(FieldModel::Value, Qt::Horizontal, Qt::ToolTipRole), QVariant());
}

class FieldSearch : public testing::Test {
protected:
    FieldSearch() {
        const fields::Reading reading = readingOf(sample());
        model.show(&reading);
        filter.setSourceModel(&model);
    }

    FieldModel model;
    desktop::FieldFilter filter;
};

TEST_F(FieldSearch, WantsAllWordsInAnyOrderAndCase) {
    filter.look("  CLOCK timing 2 detailed ");
    EXPECT_EQ(valueAt(filter, {"Block 0: base EDID", "Detailed timing 2", "Pixel clock"}), "74.25 MHz");
    EXPECT_FALSE(line(filter, {"Block 0: base EDID", "Range limits"}).isValid());
    EXPECT_FALSE(line(filter, {"Block 0: base EDID", "Detailed timing 2", "Vertical active"}).isValid());
}

TEST_F(FieldSearch, LooksIntoValuesPathsAndBytes) {
    const QStringList name{"Block 0: base EDID", "Descriptor 3", "Product name"};
    for (const char* words : {"zarqo", "base.descriptor[3]", "5F-6B"}) {
        filter.look(words);
        EXPECT_EQ(valueAt(filter, name), "ZARQO Z40") << words;
        EXPECT_FALSE(line(filter, pixelClock).isValid()) << words;
    }
}

TEST_F(FieldSearch, ShowsNothingWhereNothingIsFoundAndAllWhereNothingIsLookedFor) {
    filter.look("no such field");
    EXPECT_TRUE(filter.looks());
    EXPECT_EQ(filter.rowCount(), 0);
    filter.look("  ");
    EXPECT_FALSE(filter.looks());
    EXPECT_EQ(filter.rowCount(), 2);
    EXPECT_TRUE(line(filter, pixelClock).isValid());
}

/// All that a view can reach, a line each, with those below it in braces.
QString allLines(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
    QString all;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        all += index.data().toString() + '=' + index.siblingAtColumn(FieldModel::Value).data().toString() + '{' +
               allLines(model, index) + "}\n";
    }
    return all;
}

/// Images of one block or two, of whose descriptors some change their kind.
std::string randomImage(std::mt19937& random) {
    constexpr std::size_t blockSize = 128;
    constexpr std::array<std::size_t, 4> descriptors = {54, 72, 90, 108};
    std::string bytes = sample().substr(0, blockSize * (1 + random() % 2));
    bytes[126] = static_cast<char>(bytes.size() / blockSize - 1);
    for (const std::size_t place : descriptors) {
        constexpr std::array<int, 4> tags = {0xFC, 0xFD, 0xF7, 0x10};
        if (random() % 2 == 0) {
            bytes.replace(place, 3, 3, '\0');
            bytes[place + 3] = static_cast<char>(tags[random() % tags.size()]);
        }
    }
    return bytes;
}

TEST(FieldSearchInAChangingImage, FindsWhatIsThereNow) {
    constexpr std::array<const char*, 6> searches = {"", "active", "block", "0", "product name", "offset"};
    constexpr int steps = 400;
    std::mt19937 random(1);
    FieldModel model;
    desktop::FieldFilter filter;
    filter.setSourceModel(&model);
    QTreeView view;
    view.setModel(&filter);
    QString words;
    for (int step = 0; step < steps && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        const fields::Reading reading = readingOf(randomImage(random));
        const fields::Reading* shown = random() % 10 == 0 ? nullptr : &reading;
        model.show(shown);
        if (random() % 3 == 0) {
            words = searches[random() % searches.size()];
        }
        filter.look(words);
        view.setCurrentIndex(filter.mapFromSource(model.indexOf(reading.fields[random() % reading.fields.size()])));
        FieldModel fresh;
        fresh.show(shown);
        desktop::FieldFilter search;
        search.setSourceModel(&fresh);
        search.look(words);
        EXPECT_EQ(allLines(filter).toStdString(), allLines(search).toStdString());
    }
}

} // namespace
} // namespace wb::test

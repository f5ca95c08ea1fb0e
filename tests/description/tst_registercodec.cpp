// SPDX-License-Identifier: MIT
#include <Base/GCException.h>
#include <description/registercodec.h>

#include <QtTest>

#include <cfloat>

using namespace OrvDescription;
using RegisterCodec::Bytes;
using RegisterCodec::Format;

class TestRegisterCodec : public QObject
{
    Q_OBJECT

private slots:
    void integers();
    void reals();
    void texts();
    void sizes();
};

void TestRegisterCodec::integers()
{
    // Highest: bit 0 is the most significant bit.
    enum { Little = 0, Big = 1, Signed = 2, Highest = 4 };
    const struct
    {
        int format;
        Bytes bytes;
        int64_t value, smallest, largest;
        Bytes mask; ///< of a bit field
        int64_t first, last;
    } rows[] = {
        {Little, {0xFE}, 254, 0, 255, {}, 0, 0},
        {Signed, {0xFE}, -2, -128, 127, {}, 0, 0},
        {Little, {0x34, 0x12}, 0x1234, 0, 65535, {}, 0, 0},
        {Big, {0x12, 0x34}, 0x1234, 0, 65535, {}, 0, 0},
        {Big | Signed, {0xFF, 0xFF, 0xFE}, -2, -0x800000, 0x7FFFFF, {}, 0, 0},
        {Signed, {0xFE, 0xFF, 0xFF, 0xFF}, -2, INT32_MIN, INT32_MAX, {}, 0, 0},
        {Big, {0xFF, 0xFF, 0xFF, 0xFE}, 0xFFFFFFFE, 0, UINT32_MAX, {}, 0, 0},
        {Big | Highest, {1, 2, 3, 4, 5, 6, 7, 8}, 0x0102030405060708, 0, INT64_MAX, {}, 0, 0},
        {Little, {255, 255, 255, 255, 255, 255, 255, 255}, -1, 0, INT64_MAX, {}, 0, 0},
        {Signed, {1, 0, 0, 0, 0, 0, 0, 0x80}, INT64_MIN + 1, INT64_MIN, INT64_MAX, {}, 0, 0},
        {Little, {0xA5, 0, 0, 0}, 0xA, 0, 15, {0xF0, 0, 0, 0}, 4, 7},
        {Signed, {0xA5, 0, 0, 0}, -6, -8, 7, {0xF0, 0, 0, 0}, 7, 4},
        {Little, {0xC0, 0x0F, 0x10, 0}, 63, 0, 63, {0xC0, 0x0F, 0, 0}, 6, 11},
        {Big, {0x80, 0, 0, 0xA5}, 0xA, 0, 15, {0, 0, 0, 0xF0}, 4, 7},
        {Big | Highest, {0x80, 0, 0, 0xA5}, 0xA, 0, 15, {0, 0, 0, 0xF0}, 27, 24},
        {Big | Highest, {0x80, 0}, 1, 0, 1, {0x80, 0}, 0, 0},
        {Big | Highest | Signed, {0x1F, 0xFE}, -2, -2048, 2047, {0x0F, 0xFF}, 4, 15},
    };
    for (const auto &row : rows) {
        Format format;
        format.isBigEndian = row.format & Big;
        format.isSigned = row.format & Signed;
        format.isBit0Highest = row.format & Highest;
        format.isBitField = !row.mask.empty();
        format.firstBit = row.first;
        format.lastBit = row.last;
        const std::size_t size = row.bytes.size();
        QCOMPARE(RegisterCodec::integer(row.bytes, format), row.value);
        QCOMPARE(RegisterCodec::smallestInteger(size, format), row.smallest);
        QCOMPARE(RegisterCodec::largestInteger(size, format), row.largest);
        QVERIFY(RegisterCodec::mask(size, format) == row.mask);
        Bytes expected = row.bytes;
        for (std::size_t i = 0; i < row.mask.size(); ++i)
            expected[i] &= row.mask[i];
        QVERIFY(RegisterCodec::bytesOfInteger(row.value, size, format) == expected);
    }
}

void TestRegisterCodec::reals()
{
    const struct
    {
        double value;
        bool isBigEndian;
        Bytes bytes;
    } rows[] = {{1.5, true, {0x3F, 0xC0, 0, 0}},
                {1.5, false, {0, 0, 0xC0, 0x3F}},
                {-2.5, true, {0xC0, 0x04, 0, 0, 0, 0, 0, 0}},
                {-2.5, false, {0, 0, 0, 0, 0, 0, 0x04, 0xC0}}};
    for (const auto &row : rows) {
        QCOMPARE(RegisterCodec::real(row.bytes, row.isBigEndian), row.value);
        QVERIFY(RegisterCodec::bytesOfReal(row.value, row.bytes.size(), row.isBigEndian) ==
                row.bytes);
    }
    QCOMPARE(RegisterCodec::largestReal(4), double(FLT_MAX));
    QCOMPARE(RegisterCodec::largestReal(8), DBL_MAX);
}

void TestRegisterCodec::texts()
{
    QVERIFY(RegisterCodec::text({'a', 'b', 0, 'c'}) == "ab");
    QVERIFY(RegisterCodec::text({'a', 'b'}) == "ab");
    QVERIFY(RegisterCodec::text({}).empty());
    QVERIFY(RegisterCodec::bytesOfText("ab", 4) == Bytes({'a', 'b', 0, 0}));
    QVERIFY(RegisterCodec::bytesOfText("abc", 2) == Bytes({'a', 'b'}));
}

void TestRegisterCodec::sizes()
{
    for (const std::size_t size : {0, 9}) {
        QVERIFY_EXCEPTION_THROWN(RegisterCodec::integer(Bytes(size), {}),
                                 GenICam::RuntimeException);
        QVERIFY_EXCEPTION_THROWN(RegisterCodec::bytesOfInteger(0, size, {}),
                                 GenICam::RuntimeException);
        QVERIFY_EXCEPTION_THROWN(RegisterCodec::real(Bytes(size), false),
                                 GenICam::RuntimeException);
        QVERIFY_EXCEPTION_THROWN(RegisterCodec::bytesOfReal(0, size, false),
                                 GenICam::RuntimeException);
    }
    Format format;
    format.isBitField = true;
    for (const int64_t bit : {int64_t(-1), int64_t(32), INT64_MAX}) {
        format.lastBit = bit;
        QVERIFY_EXCEPTION_THROWN(RegisterCodec::integer(Bytes(4), format),
                                 GenICam::RuntimeException);
    }
}

QTEST_GUILESS_MAIN(TestRegisterCodec)
#include "tst_registercodec.moc"

// SPDX-License-Identifier: MIT
#include <Base/GCException.h>
#include <description/registercodec.h>

#include <arv.h>

#include <QtTest>

#include <cfloat>
#include <random>

using namespace OrvDescription;
using RegisterCodec::Bytes;
using RegisterCodec::Format;

namespace {

constexpr quint64 address = 0x8000;

/// Aravis decoding one register of its fake camera.
class Oracle
{
public:
    Oracle(const QByteArray &tag, std::size_t size, const QByteArray &properties)
        : m_device(arv_fake_device_new("Fake", nullptr))
    {
        const QByteArray common = "<Address>" + QByteArray::number(address) + "</Address><Length>" +
                                  QByteArray::number(uint(size)) +
                                  "</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
                                  "<Cachable>NoCache</Cachable>";
        const QByteArray xml = "<RegisterDescription SchemaMajorVersion='1' SchemaMinorVersion='1' "
                               "SchemaSubMinorVersion='0'><" +
                               tag + " Name='R'>" + common + properties + "</" + tag +
                               "><Port Name='Device'/></RegisterDescription>";
        m_genicam = arv_gc_new(m_device, xml.constData(), static_cast<gsize>(xml.size()));
        m_node = arv_gc_get_node(m_genicam, "R");
    }
    ~Oracle()
    {
        g_object_unref(m_genicam);
        g_object_unref(m_device);
    }
    Oracle(const Oracle &) = delete;
    Oracle &operator=(const Oracle &) = delete;

    void setBytes(Bytes bytes)
    {
        arv_device_write_memory(m_device, address, static_cast<guint32>(bytes.size()), bytes.data(),
                                nullptr);
    }
    Bytes bytes(std::size_t size) const
    {
        Bytes result(size);
        arv_device_read_memory(m_device, address, static_cast<guint32>(size), result.data(),
                               nullptr);
        return result;
    }
    ArvGcInteger *integer() const { return ARV_GC_INTEGER(m_node); }
    ArvGcFloat *real() const { return ARV_GC_FLOAT(m_node); }

private:
    ArvDevice *m_device;
    ArvGc *m_genicam;
    ArvGcNode *m_node;
};

QByteArray properties(const Format &format)
{
    QByteArray xml = format.isSigned ? "<Sign>Signed</Sign>" : "<Sign>Unsigned</Sign>";
    xml += format.isBigEndian ? "<Endianess>BigEndian</Endianess>"
                              : "<Endianess>LittleEndian</Endianess>";
    const QByteArray first = QByteArray::number(qlonglong(format.firstBit));
    if (format.isBitField && format.firstBit == format.lastBit)
        xml += "<Bit>" + first + "</Bit>";
    else if (format.isBitField)
        xml += "<LSB>" + first + "</LSB><MSB>" + QByteArray::number(qlonglong(format.lastBit)) +
               "</MSB>";
    return xml;
}

Bytes written(const Bytes &before, const Bytes &bytes, const Bytes &mask)
{
    Bytes result = bytes;
    for (std::size_t i = 0; i < mask.size(); ++i)
        result[i] = static_cast<uint8_t>((before[i] & ~mask[i]) | (bytes[i] & mask[i]));
    return result;
}

} // namespace

class TestRegisterCodec : public QObject
{
    Q_OBJECT

private slots:
    void randomIntegers();
    void reals();
    void texts();
    void sizes();
};

void TestRegisterCodec::randomIntegers()
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 500; ++i) {
        const std::size_t size = 1 + random() % 8;
        Format format;
        format.isBigEndian = format.isBit0Highest = random() % 2;
        format.isSigned = random() % 2;
        format.isBitField = random() % 3 != 0;
        format.firstBit = static_cast<int64_t>(random() % (8 * size));
        format.lastBit = static_cast<int64_t>(random() % (8 * size));
        // The least significant bit has the higher number when bit 0 is the most significant one.
        if ((format.firstBit < format.lastBit) == format.isBit0Highest)
            std::swap(format.firstBit, format.lastBit);
        if (!format.isBitField)
            format.firstBit = format.lastBit = 0;
        const QByteArray tag = !format.isBitField ? "IntReg" : "MaskedIntReg";
        Oracle oracle(tag, size, properties(format));
        const QByteArray where =
            tag + " of " + QByteArray::number(uint(size)) + ": " + properties(format);

        Bytes bytes(size);
        for (uint8_t &byte : bytes)
            byte = static_cast<uint8_t>(random());
        oracle.setBytes(bytes);
        QVERIFY2(RegisterCodec::integer(bytes, format) ==
                     arv_gc_integer_get_value(oracle.integer(), nullptr),
                 where);
        // Aravis computes the limits of bit fields with 32 bits.
        if (!format.isBitField || std::abs(format.firstBit - format.lastBit) < 32) {
            QVERIFY2(RegisterCodec::smallestInteger(size, format) ==
                         arv_gc_integer_get_min(oracle.integer(), nullptr),
                     where);
            QVERIFY2(RegisterCodec::largestInteger(size, format) ==
                         arv_gc_integer_get_max(oracle.integer(), nullptr),
                     where);
        }

        const auto value = static_cast<int64_t>(random());
        arv_gc_integer_set_value(oracle.integer(), value, nullptr);
        QVERIFY2(written(bytes, RegisterCodec::bytesOfInteger(value, size, format),
                         RegisterCodec::mask(size, format)) == oracle.bytes(size),
                 where);
    }
}

void TestRegisterCodec::reals()
{
    for (const std::size_t size : {std::size_t(4), std::size_t(8)}) {
        for (const bool isBigEndian : {false, true}) {
            Format format;
            format.isBigEndian = isBigEndian;
            Oracle oracle("FloatReg", size, properties(format));
            for (const double value : {0.0, 1.0, -2.5, 1e30, 1.0 / 3}) {
                arv_gc_float_set_value(oracle.real(), value, nullptr);
                QVERIFY(RegisterCodec::bytesOfReal(value, size, isBigEndian) == oracle.bytes(size));
                QCOMPARE(RegisterCodec::real(oracle.bytes(size), isBigEndian),
                         arv_gc_float_get_value(oracle.real(), nullptr));
            }
            QCOMPARE(RegisterCodec::largestReal(size),
                     arv_gc_float_get_max(oracle.real(), nullptr));
        }
    }
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

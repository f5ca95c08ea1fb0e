// SPDX-License-Identifier: MIT
#include <Base/GCException.h>
#include <cameraio/limits.h>
#include <description/formula.h>
#include <description/formulanames.h>
#include <genapi/nodes/question.h>

#include <arv.h>

#include <QtTest>

#include <array>
#include <cmath>
#include <optional>
#include <random>

using OrvDescription::Formula;
using OrvDescription::FormulaCode;
using OrvDescription::FormulaNames;
using OrvDescription::FormulaNumber;

namespace {

/// The names that all the formulas may use: variables A = 7, B = -3, D = 2.5, Z = 0, U (not known
/// yet) and V (with limits), constants and expressions.
class Names
{
public:
    Names()
    {
        for (const char *name : {"A", "B", "D", "Z", "U", "V", "W.Max"})
            m_names.addVariable(name);
        m_names.addConstant("TEN", " 10 ");
        m_names.addConstant("MINUS", "-0x10");
        m_names.addConstant("WRONG", "1+2");
        m_names.addExpression("THREE", "1 + 2");
        m_names.addExpression("SIX", "THREE * 2");
        m_names.addExpression("LOOP", "POOL + 1");
        m_names.addExpression("POOL", "LOOP + 1");
        m_names.addExpression("BIG0", std::string_view(big));
        for (std::size_t i = 0; i + 1 < bigNames.size(); ++i)
            m_names.addExpression(bigNames[i + 1], bigTexts[i]);
    }

    Formula formula(const QByteArray &text) const
    {
        return Formula({text.constData(), static_cast<std::size_t>(text.size())}, m_names, "Node");
    }

    FormulaNumber look(const FormulaCode::Use &use)
    {
        asked << int(use.variable);
        switch (use.variable) {
        case 0:
            return int64_t(7);
        case 1:
            return int64_t(-3);
        case 2:
            return 2.5;
        case 3:
            return int64_t(0);
        case 4:
            throw OrvGenApi::NotYetKnown();
        default:
            return int64_t(use.part.empty() ? 1 : use.part.size());
        }
    }

    Formula::Look looking()
    {
        asked.clear();
        return [this](const FormulaCode::Use &use) { return look(use); };
    }

    QList<int> asked;

private:
    static constexpr const char *big = "(1 + 1)";
    static constexpr std::array<const char *, 5> bigNames = {"BIG0", "BIG1", "BIG2", "BIG3",
                                                             "BIG4"};
    static constexpr std::array<const char *, 4> bigTexts = {
        "BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0+BIG0",
        "BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1+BIG1",
        "BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2+BIG2",
        "BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3+BIG3"};
    FormulaNames m_names;
};

QString outcome(const std::function<QString()> &evaluate)
{
    try {
        return evaluate();
    } catch (const OrvGenApi::NotYetKnown &) {
        return "not yet known";
    } catch (const GenICam::GenericException &e) {
        return e.GetDescription();
    }
}

QString integerOf(Names &names, const QByteArray &text)
{
    return outcome([&] { return QString::number(names.formula(text).integer(names.looking())); });
}

QString realOf(Names &names, const QByteArray &text)
{
    return outcome(
        [&] { return QString::number(names.formula(text).real(names.looking()), 'g', 12); });
}

/// Generates formulas that this library and Aravis evaluate in the same way. They differ in:
///
/// - choices, && and ||: Aravis evaluates all operands, so it fails if the unused one divides by 0;
/// - conditions: Aravis converts them to integers, so a number between -1 and 1 is false;
/// - the range of integers: powers and literals beyond 64 bits, and sums and products in
///   floating-point formulas, which Aravis computes with 64 bits if both operands are integers;
/// - NaN: its integer value is 0 here and the smallest integer in Aravis;
/// - syntax that Aravis lacks: "==", "!=", ".5", POW, negative constants, undeclared parts of
///   variables, expressions within expressions;
/// - ROUND within a longer formula, where Aravis miscounts its arguments;
/// - syntax that only Aravis accepts: functions without parentheses, ":1".
class Generator
{
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    /// Each round replaces every "#" by an operation; after `depth` rounds by an operand.
    QByteArray formula(int depth, bool withFunctions)
    {
        QByteArray text = "#";
        for (int round = 0; text.contains('#'); ++round) {
            QByteArray next;
            for (const char c : std::as_const(text)) {
                if (c != '#')
                    next += c;
                else if (round >= depth || below(10) == 0)
                    next += operand();
                else if (withFunctions && below(6) == 0)
                    next += anyOf(functions);
                else
                    next += anyOf(operations);
            }
            text = next;
        }
        return text;
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    QByteArray anyOf(const QByteArrayList &texts) { return texts[below(int(texts.size()))]; }
    QByteArray operand() { return below(3) ? anyOf(operands) : QByteArray::number(below(20)); }

    const QByteArrayList operands = QByteArray("A,B,D,Z,TEN,THREE,2.5,0x1f,1e2,1E-1").split(',');
    const QByteArrayList operations =
        QByteArray("( #),-#,~ #,((#<#)&&(#<>#)),((# = #)||(#>=#)),((#>#) ?#: #),((#<=#)?#:#),"
                   "(#<<(#&15)),(#>>(# & 15)),(#&15)**2,(#&15)**3,# + #,#-#,#*#,#/ #,# %#,#&#,#|#,"
                   "# ^ #,#=#,#<>#,#<#,# > #,#<=#,#>=#")
            .split(',');
    /// Functions with arguments for which they have a result.
    const QByteArrayList functions =
        QByteArray("SIN((#)),COS((#)),TAN((#)),ASIN(SIN((#))),ACOS(COS((#))),ATAN((#)),EXP((#)%5),"
                   "LN(1+ABS((#))),LG(1+ABS((#))),SQRT(ABS((#))),ABS((#)),SGN((#)),NEG((#)),"
                   "TRUNC((#)),FLOOR((#)),CEIL((#)),TRUNC((#)/3),PI,E()")
            .split(',');
    std::mt19937 m_random;
};

/// Aravis's evaluator.
class Oracle
{
public:
    explicit Oracle(const QByteArray &text) : m_evaluator(arv_evaluator_new(text.constData()))
    {
        arv_evaluator_set_int64_variable(m_evaluator, "A", 7);
        arv_evaluator_set_int64_variable(m_evaluator, "B", -3);
        arv_evaluator_set_double_variable(m_evaluator, "D", 2.5);
        arv_evaluator_set_int64_variable(m_evaluator, "Z", 0);
        arv_evaluator_set_constant(m_evaluator, "TEN", "10");
        arv_evaluator_set_sub_expression(m_evaluator, "THREE", "1 + 2");
    }
    ~Oracle() { g_object_unref(m_evaluator); }
    Oracle(const Oracle &) = delete;
    Oracle &operator=(const Oracle &) = delete;

    std::optional<int64_t> integer() { return result(arv_evaluator_evaluate_as_int64); }
    std::optional<double> real() { return result(arv_evaluator_evaluate_as_double); }

private:
    template<typename T>
    std::optional<T> result(T (*evaluate)(ArvEvaluator *, GError **))
    {
        GError *error = nullptr;
        const T value = evaluate(m_evaluator, &error);
        const bool failed = error;
        g_clear_error(&error);
        return failed ? std::nullopt : std::optional<T>(value);
    }

    ArvEvaluator *m_evaluator;
};

template<typename T>
std::optional<T> ours(const std::function<T()> &evaluate)
{
    try {
        return evaluate();
    } catch (const GenICam::GenericException &) {
        return std::nullopt;
    }
}

bool choosesOperands(const QByteArray &text)
{
    return text.contains('?') || text.contains("&&") || text.contains("||");
}

bool areAlike(std::optional<double> left, std::optional<double> right)
{
    if (!left || !right)
        return left == right;
    return (std::isnan(*left) && std::isnan(*right)) || *left == *right ||
           std::abs(*left - *right) <= 1e-12 * std::abs(*left);
}

template<typename T>
QByteArray difference(const QByteArray &text, std::optional<T> result, std::optional<T> expected)
{
    const auto number = [](std::optional<T> value) {
        return value ? QString::number(*value).toUtf8() : QByteArray("a failure");
    };
    return text + ": " + number(result) + " instead of " + number(expected);
}

} // namespace

class TestFormula : public QObject
{
    Q_OBJECT

private slots:
    void randomFormulas();
    void formulaResults_data();
    void formulaResults();
    void formulaErrors_data();
    void formulaErrors();
    void formulaLimits();
    void unknownVariables_data();
    void unknownVariables();
};

void TestFormula::randomFormulas()
{
    Generator generator(20);
    Names names;
    int compared = 0;
    for (int i = 0; i < 20000; ++i) {
        const bool withFunctions = i % 2 != 0;
        const QByteArray text = generator.formula(1 + i % 5, withFunctions);
        const Formula formula = names.formula(text);
        QVERIFY2(formula.error().empty(), text.constData());
        Oracle oracle(text);

        const auto real = ours<double>([&] { return formula.real(names.looking()); });
        if (real && std::abs(*real) > 1e15)
            continue; // the integer result would overflow
        const auto expectedReal = oracle.real();
        if (!expectedReal && real && choosesOperands(text))
            continue;
        QVERIFY2(areAlike(real, expectedReal), difference(text, real, expectedReal));
        compared += real.has_value();
        if (withFunctions)
            continue;

        const auto integer = ours<int64_t>([&] { return formula.integer(names.looking()); });
        const auto expected = oracle.integer();
        if (!expected && integer && choosesOperands(text))
            continue;
        QVERIFY2(integer == expected, difference(text, integer, expected));
    }
    QVERIFY2(compared > 12000, QByteArray::number(compared));
}

void TestFormula::formulaResults_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("integer");
    QTest::addColumn<QString>("real");
    const auto row = [](const char *text, const char *integer, const char *real) {
        QTest::newRow(text) << QByteArray(text) << QString(integer) << QString(real);
    };
    row("A==7&&A!=8", "1", "1");
    row(".5*4", "0", "2");
    row("2**3**2", "512", "512");
    row("-2**2", "4", "4");
    row("POW(2,-1)", "1", "0.5"); // functions compute with fractions, the result is rounded
    row("ROUND(2.5)-ROUND(-2.5)", "6", "6");
    row("(2)*ROUND(2.346,2)", "5", "4.7");
    row("7/2*SGN(1)", "4", "3.5");
    row("pi()*E()", "9", "8.53973422267");
    row("0.5?1:2", "2", "1");
    row("MINUS*2", "-32", "-32");
    row("SIX+W.Max", "9", "9");
    row("V+V.Value+V.Entry.On", "10", "10");
    row("0?1:Z?2:A", "7", "7");
    row("1+1<<2=8", "1", "1");
    row("1+Z?2:3*A+1", "2", "2");
    row("Z||Z?2:3+A", "10", "10");
    row("Z=0?0:1/Z", "0", "0");
    row("Z<>0&&1/Z", "0", "0");
    row("Z=0||1/Z", "1", "1");
    row("1/Z", "Node: division by zero", "Node: division by zero");
    row("A%0.5", "Node: division by zero", "Node: division by zero");
    row("0**-1", "Node: division by zero", "Node: division by zero");
    row("ROUND(1/Z)", "Node: division by zero", "Node: division by zero");
    row("LN(-1)", "Not a number", "nan");
    row("(1<<63)/-1", "-9223372036854775808", "9.22337203685e+18");
    row("(1<<63)%-1", "0", "0");
    row("1<<64", "1", "1");
    row("-8>>-62", "-2", "-2");
    row("0xFFFFFFFFFFFFFFFF", "-1", "-1");
    row("0x7FFFFFFFFFFFFFFF+1", "-9223372036854775808", "9.22337203685e+18");
    row("1e300", "9223372036854775807", "1e+300");
}

void TestFormula::formulaResults()
{
    QFETCH(QByteArray, text);
    Names names;
    QTEST(integerOf(names, text), "integer");
    QTEST(realOf(names, text), "real");
}

void TestFormula::formulaErrors_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArrayList texts =
        QByteArray("| |()|(1|1)|2 3|1 +|* 1|1 ? 2|:1|1,2|SIN|SIN 1|SIN()|SIN(1,2)|POW(1)|"
                   "ROUND(1,2,3)|1e|0x|0xFFFFFFFFFFFFFFFFF|1.2.3|1e999|X|X.Max|!A|A =>7|"
                   "WRONG|TEN.Max|LOOP|BIG4|A\xc3\xa4")
            .split('|');
    for (const QByteArray &text : texts)
        QTest::newRow(text) << text;
    QTest::newRow("zero byte") << QByteArray("1\0", 2);
    QTest::newRow("too deep") << QByteArray(200, '(') + "1" + QByteArray(200, ')');
    QTest::newRow("too long") << QByteArray(200000, '1').replace("1", "1+") + "1";
}

void TestFormula::formulaErrors()
{
    QFETCH(QByteArray, text);
    Names names;
    const Formula formula = names.formula(text);
    QVERIFY(!formula.error().empty());
    QVERIFY(integerOf(names, text).startsWith("Node: the formula makes no sense: "));
    QCOMPARE(names.asked, QList<int>());
}

void TestFormula::formulaLimits()
{
    Names names;
    const int depth = OrvCameraIo::Limits::formulaDepth - 1;
    QCOMPARE(integerOf(names, QByteArray(depth, '(') + "1" + QByteArray(depth, ')')), QString("1"));
    QCOMPARE(integerOf(names, QByteArray(60000, '-') + "1"), QString("1"));
    QByteArray sum = "1";
    QByteArray choices;
    for (int i = 0; i < 5000; ++i) {
        sum += "+1";
        choices += "A=0?1:";
    }
    QCOMPARE(integerOf(names, sum), QString("5001"));
    QCOMPARE(integerOf(names, choices + "3"), QString("3"));
}

void TestFormula::unknownVariables_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QList<int>>("asked");
    const auto row = [](const char *text, const char *result, const QList<int> &asked) {
        QTest::newRow(text) << QByteArray(text) << QString(result) << asked;
    };
    row("U + A * D", "not yet known", {4, 0, 2});
    row("U + U", "not yet known", {4});
    row("U ? A : B", "not yet known", {4, 0, 1});
    row("(U ? A : B) + D", "not yet known", {4, 2, 0, 1});
    row("A ? B : U", "-3", {0, 1});
    row("U && A", "not yet known", {4, 0});
    row("A && U", "not yet known", {0, 4});
    row("Z && U", "0", {3});
    row("A || U", "1", {0});
    row("U + 1/Z", "Node: division by zero", {4, 3});
}

void TestFormula::unknownVariables()
{
    QFETCH(QByteArray, text);
    Names names;
    QTEST(integerOf(names, text), "result");
    QTEST(names.asked, "asked");
    QTEST(realOf(names, text), "result");
}

QTEST_GUILESS_MAIN(TestFormula)
#include "tst_formula.moc"

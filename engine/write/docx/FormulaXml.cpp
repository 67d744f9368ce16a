#include "write/docx/FormulaXml.h"

#include "write/docx/FontTablePart.h"
#include "write/docx/Justification.h"
#include "write/docx/PictureXml.h"
#include "write/docx/RunXml.h"

#include <string_view>

namespace orvane::write::docx {
namespace {

using namespace document;

constexpr std::string_view kFormulaFont = "Cambria Math";

const char* styleOf(FormulaShape shape) {
    switch (shape) {
    case FormulaShape::Upright:
        return "p";
    case FormulaShape::Italic:
        return "i";
    case FormulaShape::Bold:
        return "b";
    case FormulaShape::BoldItalic:
        break;
    }
    return "bi";
}

/// Words within a formula, of which the blanks count.
bool isWords(std::string_view text) {
    return text.find(' ') != std::string_view::npos;
}

class FormulaWriter {
public:
    FormulaWriter(XmlWriter& xml, const RunProperties& properties, const RunProperties& base)
        : m_xml(xml)
        , m_properties(properties)
        , m_base(base) {}

    void write(const FormulaPart& part) {
        switch (part.kind) {
        case FormulaKind::Text:
            return writeText(part);
        case FormulaKind::Row:
            for (const FormulaPart& inner : part.parts)
                write(inner);
            return;
        case FormulaKind::Script:
            return writeScript(part);
        case FormulaKind::Limits:
            return writeLimits(part, LimitSide::Above);
        case FormulaKind::Fraction:
            return writeFraction(part);
        case FormulaKind::Radical:
            return writeRadical(part);
        case FormulaKind::Operator:
            return writeOperator(part);
        case FormulaKind::Fence:
            return writeFence(part);
        case FormulaKind::Accent:
            return writeAccent(part);
        case FormulaKind::Bar:
            return writeBar(part);
        }
    }

private:
    static bool isEmpty(const FormulaPart& part) { return part.kind == FormulaKind::Row && part.parts.empty(); }

    void place(std::string_view name, const FormulaPart& part) {
        const XmlElement element(m_xml, name);
        write(part);
    }

    void writeText(const FormulaPart& part) {
        const XmlElement run(m_xml, "m:r");
        {
            const XmlElement look(m_xml, "m:rPr");
            if (isWords(part.text))
                m_xml.leaf("m:nor");
            else
                m_xml.leaf("m:sty", {{"m:val", styleOf(part.shape)}});
        }
        writeLook(part.shape);
        const XmlElement text(m_xml, "m:t", {{"xml:space", "preserve"}});
        m_xml.text(part.text);
    }

    void writeLook(FormulaShape shape) {
        RunProperties look = m_properties;
        look.isBold = shape == FormulaShape::Bold || shape == FormulaShape::BoldItalic;
        look.isItalic = shape == FormulaShape::Italic || shape == FormulaShape::BoldItalic;
        writeRunProperties(m_xml, look, &m_base, ScriptUse::Simple);
    }

    void writeScript(const FormulaPart& part) {
        const bool hasSub = !isEmpty(part.parts[1]), hasSuper = !isEmpty(part.parts[2]);
        const XmlElement script(m_xml, hasSub && hasSuper ? "m:sSubSup" : hasSub ? "m:sSub" : "m:sSup");
        place("m:e", part.parts[0]);
        if (hasSub)
            place("m:sub", part.parts[1]);
        if (hasSuper)
            place("m:sup", part.parts[2]);
    }

    enum class LimitSide { Above, Below };

    /// The limit above is around the one below.
    void writeLimits(const FormulaPart& part, LimitSide side) {
        const FormulaPart& limit = part.parts[side == LimitSide::Above ? 2 : 1];
        const auto writeBase = [&] {
            if (side == LimitSide::Above)
                writeLimits(part, LimitSide::Below);
            else
                write(part.parts[0]);
        };
        if (isEmpty(limit))
            return writeBase();
        const XmlElement element(m_xml, side == LimitSide::Above ? "m:limUpp" : "m:limLow");
        m_xml.start("m:e");
        writeBase();
        m_xml.end();
        place("m:lim", limit);
    }

    void writeFraction(const FormulaPart& part) {
        const XmlElement fraction(m_xml, "m:f");
        place("m:num", part.parts[0]);
        place("m:den", part.parts[1]);
    }

    void writeRadical(const FormulaPart& part) {
        const XmlElement radical(m_xml, "m:rad");
        if (isEmpty(part.parts[1])) {
            const XmlElement properties(m_xml, "m:radPr");
            m_xml.leaf("m:degHide", {{"m:val", 1}});
        }
        place("m:deg", part.parts[1]);
        place("m:e", part.parts[0]);
    }

    void writeOperator(const FormulaPart& part) {
        const XmlElement element(m_xml, "m:nary");
        {
            const XmlElement properties(m_xml, "m:naryPr");
            m_xml.leaf("m:chr", {{"m:val", part.text}});
            m_xml.leaf("m:limLoc", {{"m:val", part.limits == LimitPlace::AboveAndBelow ? "undOvr" : "subSup"}});
            if (isEmpty(part.parts[0]))
                m_xml.leaf("m:subHide", {{"m:val", 1}});
            if (isEmpty(part.parts[1]))
                m_xml.leaf("m:supHide", {{"m:val", 1}});
        }
        place("m:sub", part.parts[0]);
        place("m:sup", part.parts[1]);
        place("m:e", part.parts[2]);
    }

    void writeFence(const FormulaPart& part) {
        const XmlElement fence(m_xml, "m:d");
        {
            const XmlElement properties(m_xml, "m:dPr");
            m_xml.leaf("m:begChr", {{"m:val", part.text}});
            m_xml.leaf("m:endChr", {{"m:val", part.closing}});
        }
        place("m:e", part.parts[0]);
    }

    void writeAccent(const FormulaPart& part) {
        const XmlElement accent(m_xml, "m:acc");
        {
            const XmlElement properties(m_xml, "m:accPr");
            m_xml.leaf("m:chr", {{"m:val", part.text}});
        }
        place("m:e", part.parts[0]);
    }

    void writeBar(const FormulaPart& part) {
        const XmlElement bar(m_xml, "m:bar");
        {
            const XmlElement properties(m_xml, "m:barPr");
            m_xml.leaf("m:pos", {{"m:val", "top"}});
        }
        place("m:e", part.parts[0]);
    }

    XmlWriter& m_xml;
    const RunProperties& m_properties;
    const RunProperties& m_base;
};

void writeMath(Story& story, const Formula& formula, const RunProperties& base) {
    RunProperties look = formula.properties;
    look.fontFamily = kFormulaFont;
    collectFonts(story.state, look);
    const XmlElement math(story.xml, "m:oMath");
    FormulaWriter(story.xml, look, base).write(formula.content);
}

/// Word processors without formulas, be it that a part of them is not installed, would show nothing.
template<typename Write>
void withPicture(Story& story, const Formula& formula, const Write& write) {
    if (!formula.picture)
        return write();
    const XmlElement alternatives(story.xml, "mc:AlternateContent");
    {
        const XmlElement choice(story.xml, "mc:Choice", {{"Requires", "m"}});
        write();
    }
    const XmlElement fallback(story.xml, "mc:Fallback");
    writeInlinePicture(story, *formula.picture);
}

} // namespace

void writeFormula(Story& story, const Formula& formula, const RunProperties& base) {
    withPicture(story, formula, [&] { writeMath(story, formula, base); });
}

const Formula* loneFormula(const Paragraph& paragraph) {
    const Formula* found = nullptr;
    for (const Inline& item : paragraph.inlines) {
        if (std::holds_alternative<Bookmark>(item.value))
            continue;
        const auto* formula = std::get_if<Formula>(&item.value);
        if (!formula || found || formula->place != FormulaPlace::Displayed)
            return nullptr;
        found = formula;
    }
    return found;
}

void writeLoneFormula(Story& story, const Formula& formula, const Paragraph& paragraph, const RunProperties& base) {
    withPicture(story, formula, [&] {
        const XmlElement display(story.xml, "m:oMathPara");
        {
            const XmlElement properties(story.xml, "m:oMathParaPr");
            story.xml.leaf("m:jc", {{"m:val", justificationOf(paragraph.properties.alignment)}});
        }
        writeMath(story, formula, base);
    });
}

} // namespace orvane::write::docx

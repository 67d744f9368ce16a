#pragma once

#include <cstdint>

/// The properties of the format, each with its number: it tells what the property is of and how long its value is.
/// Source: [MS-DOC] 2.6.1 (characters), 2.6.2 (paragraphs), 2.6.3 (tables), 2.6.4 (sections).
namespace orvane::write::doc::sprm {

// characters
inline constexpr std::uint16_t kCPicLocation = 0x6A03;
inline constexpr std::uint16_t kCFData = 0x0806;
inline constexpr std::uint16_t kCHighlight = 0x2A0C;
inline constexpr std::uint16_t kCFBold = 0x0835;
inline constexpr std::uint16_t kCFItalic = 0x0836;
inline constexpr std::uint16_t kCFStrike = 0x0837;
inline constexpr std::uint16_t kCFOutline = 0x0838;
inline constexpr std::uint16_t kCFSmallCaps = 0x083A;
inline constexpr std::uint16_t kCFCaps = 0x083B;
inline constexpr std::uint16_t kCFVanish = 0x083C;
inline constexpr std::uint16_t kCKul = 0x2A3E;
inline constexpr std::uint16_t kCDxaSpace = 0x8840;
inline constexpr std::uint16_t kCHps = 0x4A43;
inline constexpr std::uint16_t kCHpsPos = 0x4845;
inline constexpr std::uint16_t kCIss = 0x2A48;
inline constexpr std::uint16_t kCRgFtc0 = 0x4A4F;
inline constexpr std::uint16_t kCRgFtc1 = 0x4A50;
inline constexpr std::uint16_t kCRgFtc2 = 0x4A51;
inline constexpr std::uint16_t kCCharScale = 0x4852;
inline constexpr std::uint16_t kCFSpec = 0x0855;
inline constexpr std::uint16_t kCFBiDi = 0x085A;
inline constexpr std::uint16_t kCFBoldBi = 0x085C;
inline constexpr std::uint16_t kCFItalicBi = 0x085D;
inline constexpr std::uint16_t kCFtcBi = 0x4A5E;
inline constexpr std::uint16_t kCLidBi = 0x485F;
inline constexpr std::uint16_t kCHpsBi = 0x4A61;
inline constexpr std::uint16_t kCCv = 0x6870;
inline constexpr std::uint16_t kCShd = 0xCA71;
inline constexpr std::uint16_t kCRgLid0 = 0x4873;
inline constexpr std::uint16_t kCRgLid1 = 0x4874;

// paragraphs
inline constexpr std::uint16_t kPJc80 = 0x2403;
inline constexpr std::uint16_t kPFKeep = 0x2405;
inline constexpr std::uint16_t kPFKeepFollow = 0x2406;
inline constexpr std::uint16_t kPFPageBreakBefore = 0x2407;
inline constexpr std::uint16_t kPIlvl = 0x260A;
inline constexpr std::uint16_t kPIlfo = 0x460B;
inline constexpr std::uint16_t kPChgTabsPapx = 0xC60D;
inline constexpr std::uint16_t kPDxaRight80 = 0x840E;
inline constexpr std::uint16_t kPDxaLeft80 = 0x840F;
inline constexpr std::uint16_t kPDxaLeft180 = 0x8411;
inline constexpr std::uint16_t kPDyaLine = 0x6412;
inline constexpr std::uint16_t kPDyaBefore = 0xA413;
inline constexpr std::uint16_t kPDyaAfter = 0xA414;
inline constexpr std::uint16_t kPFInTable = 0x2416;
inline constexpr std::uint16_t kPFTtp = 0x2417;
inline constexpr std::uint16_t kPPc = 0x261B;
inline constexpr std::uint16_t kPWr = 0x2423;
inline constexpr std::uint16_t kPDcs = 0x442C;
inline constexpr std::uint16_t kPDxaFromText = 0x842F;
inline constexpr std::uint16_t kPFWidowControl = 0x2431;
inline constexpr std::uint16_t kPFBiDi = 0x2441;
inline constexpr std::uint16_t kPFInnerTableCell = 0x244B;
inline constexpr std::uint16_t kPFInnerTtp = 0x244C;
inline constexpr std::uint16_t kPDxaRight = 0x845D;
inline constexpr std::uint16_t kPDxaLeft = 0x845E;
inline constexpr std::uint16_t kPDxaLeft1 = 0x8460;
inline constexpr std::uint16_t kPJc = 0x2461;
inline constexpr std::uint16_t kPFContextualSpacing = 0x246D;
inline constexpr std::uint16_t kPOutLvl = 0x2640;
inline constexpr std::uint16_t kPHugePapx = 0x6646;
inline constexpr std::uint16_t kPItap = 0x6649;
inline constexpr std::uint16_t kPShd = 0xC64D;
inline constexpr std::uint16_t kPBrcTop = 0xC64E;
inline constexpr std::uint16_t kPBrcLeft = 0xC64F;
inline constexpr std::uint16_t kPBrcBottom = 0xC650;
inline constexpr std::uint16_t kPBrcRight = 0xC651;
inline constexpr std::uint16_t kPBrcBetween = 0xC652;

// tables
inline constexpr std::uint16_t kTJc90 = 0x5400;
inline constexpr std::uint16_t kTFCantSplit90 = 0x3403;
inline constexpr std::uint16_t kTTableHeader = 0x3404;
inline constexpr std::uint16_t kTDyaRowHeight = 0x9407;
inline constexpr std::uint16_t kTDxaGapHalf = 0x9602;
inline constexpr std::uint16_t kTFBiDi = 0x560B;
inline constexpr std::uint16_t kTDefTable = 0xD608;
inline constexpr std::uint16_t kTDefTableShd3rd = 0xD60C;
inline constexpr std::uint16_t kTDefTableShd = 0xD612;
inline constexpr std::uint16_t kTDefTableShd2nd = 0xD616;
inline constexpr std::uint16_t kTSetBrc = 0xD62F;
inline constexpr std::uint16_t kTFAutofit = 0x3615;
inline constexpr std::uint16_t kTCellPadding = 0xD632;

// sections
inline constexpr std::uint16_t kSFEvenlySpaced = 0x3005;
inline constexpr std::uint16_t kSBkc = 0x3009;
inline constexpr std::uint16_t kSFTitlePage = 0x300A;
inline constexpr std::uint16_t kSCcolumns = 0x500B;
inline constexpr std::uint16_t kSDxaColumns = 0x900C;
inline constexpr std::uint16_t kSNfcPgn = 0x300E;
inline constexpr std::uint16_t kSFPgnRestart = 0x3011;
inline constexpr std::uint16_t kSDyaHdrTop = 0xB017;
inline constexpr std::uint16_t kSDyaHdrBottom = 0xB018;
inline constexpr std::uint16_t kSLBetween = 0x3019;
inline constexpr std::uint16_t kSPgnStart97 = 0x501C;
inline constexpr std::uint16_t kSBOrientation = 0x301D;
inline constexpr std::uint16_t kSXaPage = 0xB01F;
inline constexpr std::uint16_t kSYaPage = 0xB020;
inline constexpr std::uint16_t kSDxaLeft = 0xB021;
inline constexpr std::uint16_t kSDxaRight = 0xB022;
inline constexpr std::uint16_t kSDyaTop = 0x9023;
inline constexpr std::uint16_t kSDyaBottom = 0x9024;
inline constexpr std::uint16_t kSNLnnMod = 0x5015;
inline constexpr std::uint16_t kSLnc = 0x3013;
inline constexpr std::uint16_t kSDxaLnn = 0x9016;
inline constexpr std::uint16_t kSLnnMin = 0x501B;
inline constexpr std::uint16_t kSRncFtn = 0x303C;
inline constexpr std::uint16_t kSRncEdn = 0x303E;
inline constexpr std::uint16_t kSNfcFtnRef = 0x5040;
inline constexpr std::uint16_t kSNfcEdnRef = 0x5042;
inline constexpr std::uint16_t kSTextFlow = 0x5033;
inline constexpr std::uint16_t kSDxaColWidth = 0xF203;
inline constexpr std::uint16_t kSDxaColSpacing = 0xF204;
inline constexpr std::uint16_t kSFBiDi = 0x3228;

} // namespace orvane::write::doc::sprm

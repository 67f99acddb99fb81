#include "Resources/MainFormTable.h"

#include "Resources/Strings.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;
using S = StringId;
using Style = StatusBar::PanelStyle;

constexpr unsigned kBackground = Rgb(192, 192, 255);
constexpr unsigned kGrey = Rgb(192, 192, 192);
constexpr unsigned kDarkBlue = Rgb(0, 0, 128);
constexpr FontSpec kCellFont = {u"Times New Roman", 9.75};
constexpr double kBorder = 30;      // of the tables, at both sides
constexpr double kStatusBar = 315;  // its height

constexpr TabSpec kTabs[] = {
    {u"Setup/Install", u"Onglet0"}, {u"Exe", u"Onglet1"}, {u"Archive ZIP", u"Onglet2"}};

constexpr StatusPanelSpec kPanels[] = {{u"Msg", Style::kText},
                                       {u"Maj", Style::kCapsLock},
                                       {u"Num", Style::kNumLock},
                                       {u"INSER", Style::kInsert}};

// --- How the controls follow the window: one anchor a step, in the order of the steps ---

constexpr Anchor kLastShadow = {1, Edge::kRight, false, nullptr, -1, Edge::kRight, 0};
constexpr Anchor kLastButton = {2, Edge::kLeft, false, u"ShapeOmbre", 0, Edge::kLeft, -75};
constexpr Anchor kUpperLine = {3, Edge::kRight, true, nullptr, -1, Edge::kRight, -kBorder};
constexpr Anchor kTables = {5, Edge::kRight, true, nullptr, -1, Edge::kRight, -kBorder};
constexpr Anchor kCount = {6, Edge::kRight, false, u"ZoneDesTableaux", -1, Edge::kRight, 0};
constexpr Anchor kIcon = {7, Edge::kLeft, false, u"TextInfo", 6, Edge::kLeft, kBorder};
constexpr Anchor kFileName = {8, Edge::kRight, true, u"TextInfo", 6, Edge::kLeft, 0};
// The detail boxes come from the lowest to the highest.
constexpr Anchor Detail(int from_below) {
  return {90 + from_below, Edge::kRight, true, u"TextInfo", 5, Edge::kRight, 0};
}
constexpr Anchor kCompanions = {100, Edge::kBottom, true, nullptr, -1, Edge::kBottom, -kStatusBar};
constexpr Anchor kPaneWidth = {110, Edge::kRight, true,    u"ZoneDesTableaux",
                               -1,  Edge::kRight, -kBorder};
constexpr Anchor kPaneHeight = {110, Edge::kBottom, true, u"ListFichier", -1, Edge::kBottom, 15};
constexpr Anchor kTable = {120, Edge::kRight, true, nullptr, -1, Edge::kRight, -75};

// --- Rows of a kind ---

// A shadow stands 75 to the right of its button.
constexpr ControlSpec ShadowAt(int index, double button_left, Anchor anchor = {}) {
  return {K::kShape, u"ShapeOmbre",
          index,     {button_left + 75, 150, 990, 825},
          u"",       {.back_color = Rgb(128, 128, 128), .anchors = {anchor}}};
}

// A button of the tool bar; its picture bears its name.
constexpr ControlSpec ToolAt(const char16_t* name, double left, const char16_t* caption, int tab,
                             S help, Anchor anchor = {}) {
  return {K::kButton, name,
          -1,         {left, 75, 990, 840},
          caption,    {.tab = tab, .help = help, .picture = name, .anchors = {anchor}}};
}

// The captions of the detail boxes end at the same edge.
constexpr ControlSpec DetailLabel(int index, Place place, const char16_t* caption) {
  return {K::kLabel, u"Label2", index, place, caption, {.alignment = Alignment::kRight}};
}

constexpr ControlSpec DetailBox(int index, double top, int tab, S spoken, int from_below) {
  return {K::kTextBox,
          u"TextInfo",
          index,
          {4575, top, 5490, 285},
          u"",
          {.tab = tab,
           .help = kEmptyText,
           .spoken = spoken,
           .fore_color = kDarkBlue,
           .locked = true,
           .anchors = {Detail(from_below)}}};
}

constexpr ControlSpec GridOn(int page, S spoken) {
  return {K::kGrid,
          u"GridLogiciel",
          page,
          {75, 375, 8775, 2745},
          u"",
          {.container = u"ZoneDesTableaux",
           .page = page,
           .tab = 15 + page,
           .spoken = spoken,
           .font = kCellFont,
           .anchors = {kTable}}};
}

constexpr ControlSpec kControls[] = {
    ShadowAt(2, 2700),
    ShadowAt(4, 4050),
    ShadowAt(3, 5175),
    ShadowAt(5, 6300),
    ShadowAt(6, 7545),
    ShadowAt(1, 8670),
    ShadowAt(0, 9795, kLastShadow),
    {K::kDriveListBox,
     u"ListeDrive",
     -1,
     {75, 75, 2580, 315},
     u"",
     {.tab = 6, .spoken = S::kNomListeDrive}},
    {K::kDirListBox,
     u"ListeRepertoire",
     -1,
     {75, 450, 2580, 1665},
     u"",
     {.tab = 7, .help = S::kAideListeRepertoire, .spoken = S::kNomListeRepertoire}},
    // The tool bar comes first in the order of the Tab key, with Exporter last of all.
    ToolAt(u"Explorer", 2700, u"Explorer", 0, S::kAideExplorer),
    ToolAt(u"ConvertHTML", 4050, u"HTML...", 1, S::kAideConvertHtml),
    ToolAt(u"Exporter", 5175, u"Exporter...", 21, S::kAideExporter),
    ToolAt(u"Imprimer", 6300, u"Imprimer...", 2, S::kAideImprimer),
    ToolAt(u"CommandOption", 7545, u"Options...", 3, kEmptyText),
    ToolAt(u"Apropos", 8670, u"A propos...", 4, S::kAideApropos),
    ToolAt(u"Quitter", 9795, u"Quitter", 5, S::kAideQuitter, kLastButton),
    {K::kImage, u"ImageAppli", -1, {2850, 1080, 480, 480}, u"", {.picture = u"Trovex"}},
    DetailLabel(11, {3450, 1140, 1065, 195}, u"Libellé produit :"),
    DetailBox(4, 1065, 8, S::kNomLibelleProduit, 0),
    DetailLabel(20, {3765, 1440, 750, 195}, u"Copyright :"),
    DetailBox(1, 1365, 9, S::kNomCopyright, 3),
    DetailLabel(21, {3570, 1740, 945, 195}, u"Nom interne :"),
    DetailBox(2, 1665, 10, S::kNomInterne, 2),
    DetailLabel(22, {2865, 2040, 1650, 195}, u"Société de distribution :"),
    DetailBox(3, 1980, 11, S::kNomSociete, 1),
    {K::kPictureBox,
     u"IconeFichier",
     -1,
     {10110, 1395, 540, 540},
     u"",
     {.spoken = S::kNomIcone, .back_color = kBackground, .anchors = {kIcon}}},
    {K::kTextBox,
     u"TextInfo",
     5,
     {4575, 2295, 5490, 285},
     u"",
     {.tab = 12,
      .help = S::kAideFichier,
      .spoken = S::kNomFichierChoisi,
      .font = {.bold = true},
      .back_color = kGrey,
      .locked = true,
      .anchors = {kFileName}}},
    {K::kTextBox,
     u"TextInfo",
     6,
     {10110, 2295, 705, 285},
     u"",
     {.tab = 13,
      .help = S::kAideNombre,
      .spoken = S::kNomNombreLignes,
      .font = {.bold = true},
      .alignment = Alignment::kCentre,
      .back_color = kGrey,
      .locked = true,
      .anchors = {kCount}}},
    {K::kTabControl,
     u"ZoneDesTableaux",
     -1,
     {30, 2295, 10800, 3165},
     u"",
     {.tab = 14,
      .help = kEmptyText,
      .spoken = S::kNomTableaux,
      .tabs = kTabs,
      .anchors = {kTables}}},
    GridOn(0, S::kNomInstallations),
    GridOn(1, S::kNomExecutables),
    GridOn(2, S::kNomArchives),
    {K::kLabel, u"LabelInfo", 1, {150, 5610, 1500, 195}, u"Fichiers accessibles :"},
    {K::kLabel,
     u"LabelInfo",
     2,
     {2625, 5610, 2055, 195},
     u"Affichage des fichiers ASCII :",
     {.visible = false}},
    {K::kButton,
     u"PrintTexte",
     -1,
     {4800, 5530, 300, 300},
     u"",
     {.visible = false,
      .tab = 20,
      .help = S::kAidePrintTexte,
      .spoken = S::kNomImprimerTexte,
      .picture = u"PrintTexte"}},
    {K::kListBox,
     u"ListFichier",
     -1,
     {75, 5835, 2415, 645},
     u"",
     {.tab = 18,
      .help = S::kAideListFichier,
      .spoken = S::kNomFichiers,
      .sorted = true,
      .anchors = {kCompanions}}},
    {K::kTextBox,
     u"TextInfo",
     0,
     {2550, 5850, 8325, 1215},
     u"",
     {.visible = false,
      .tab = 19,
      .help = S::kAideTexte,
      .spoken = S::kNomTexteFichier,
      .font = {u"Fixedsys", 9},
      .locked = true,
      .multi_line = true,
      .anchors = {kPaneWidth, kPaneHeight}}},
    {K::kPictureBox,
     u"ImageSelect",
     -1,
     {2580, 5850, 540, 540},
     u"",
     {.visible = false, .spoken = S::kNomImage, .back_color = kBackground}},
    {K::kStatusBar,
     u"PanelAide",
     -1,
     {0, 7095, 10905, kStatusBar},
     u"",
     {.help = S::kAidePanel,
      .tool_tip = S::kInfoBullePanel,
      .spoken = S::kNomAide,
      .panels = kPanels}},
    {K::kLine, u"Line1", 0, {2775, 990, 8070, 0}, u"", {.anchors = {kUpperLine}}},
    {K::kLine, u"Line1", 1, {30, 2160, 2730, 0}},
    {K::kLine, u"Line2", -1, {2760, 990, 0, 1190}},
};

}  // namespace

const FormSpec kMainFormSpec = {.name = u"MainForm",
                                .caption = u"Trovex",
                                .client_width = 10905,
                                .client_height = 7410,
                                .sizable = true,
                                .back_color = kBackground,
                                .controls = kControls,
                                .texts = ResString,
                                .help = kEmptyText};

}  // namespace trovex

// The preview surface: takes texts, lines, images and grids, lays them out on numbered A4 pages
// with margins of 1.5 cm, and shows them. Places and widths are twips, from the corner where the
// margins meet.
#pragma once

#include "Paper/PageBuilder.h"
#include "Resources/PreviewTexts.h"
#include "Ui/Grid.h"

namespace trovex {

// A document begins with the first output and ends with ShowPreview; what is set holds for the next
// one as well. What needs a page behind the last that a document may have raises kOverflow.
class PreviewSurface : public Control {
 public:
  PreviewSurface() : Control(ControlKind::kPreviewSurface) {}

  // Where the next output goes. A line for which the page in hand has no room any more goes to the
  // top of the next page; CurrentY begins that one.
  double CurrentX() const { return x_; }
  double CurrentY();
  void SetCurrentX(double x) { x_ = x; }
  void SetCurrentY(double y) { y_ = y; }

  // Font, styles and colour of the output that follows. A size that is none raises
  // kInvalidProperty.
  const Text& FontName() const { return font_.name; }
  double FontSize() const { return font_.size; }
  unsigned ForeColor() const { return colour_; }
  void SetFontName(const Text& name) { font_.name = name; }
  void SetFontSize(double size);
  void SetForeColor(unsigned colour) { colour_ = colour; }
  void SetFontBold(bool bold) { font_.bold = bold; }
  void SetFontItalic(bool italic) { font_.italic = italic; }
  void SetFontUnderline(bool underline) { underline_ = underline; }

  // 1 portrait, 2 landscape, from the next page on; anything else raises kInvalidProperty.
  void SetOrientation(int orientation);
  // What stands above a grid, what stands at the top of each page, and whose window it is.
  void SetTitreDocument(const Text& title) { title_ = title; }
  void SetLibellePage(const Text& label) { pages_.SetLabel(label); }
  void SetTitreAppli(const Text& title) { application_ = title; }
  // Name of a file that the surface may use; this one needs none.
  const Text& FichierTravail() const { return work_file_; }
  void SetFichierTravail(const Text& name) { work_file_ = name; }
  void UseFrench() { texts_ = &kFrenchPreview; }
  void UseEnglish() { texts_ = &kEnglishPreview; }

  // Width between the margins, and of a line that nobody gave another.
  double PageWidth() const { return pages_.Body().width; }
  double LineWidth() const { return 15; }
  double TextWidth(TextView text);

  // Writes lines, cut by CR LF and wrapped at blanks, from the current position on, and goes to the
  // beginning of the next line. The end of the text ends a line as well, but for one behind a CR
  // LF. Tabs lead to stops that stand at the same places in every line of a font.
  void PrintText(TextView text);
  // The same, against the left margin's side (0 and unknown values), the right one (1) or centred
  // (2).
  void PrintTextAligned(TextView text, int align);
  // Begins a page. The kind of break makes no difference; numbers stop until NumeroterPages.
  void NewPage(int kind);
  // Numbers the page begun, and those that the output flows onto, at the foot. Neither place nor
  // form can be chosen.
  void NumeroterPages(int place, int form);
  void DrawLine(double x1, double y1, double x2, double y2, unsigned colour, double width);
  // Draws a bitmap file at 96 dots an inch, smaller where it would leave the page. Says so by the
  // error box where the file holds none.
  void DrawImage(const Text& file, double x, double y);

  // Lays out the whole grid below its title and shows the preview.
  void PrintGrid(const Grid& grid);
  void PrintDBGrid(const Grid& grid) { PrintGrid(grid); }
  void ShowPreview();

  // The document has come to the last page that it may have.
  bool Full() const { return pages_.Full(); }

 private:
  const FontRuler& Ruler() { return pages_.Ruler(font_); }
  void PutLine(TextView line, int align);
  void PutTabbedLine(TextView line);
  // At the present height; x and y stay.
  void PutPart(double x, TextView part);
  void PutTitle();
  // Makes room for a line of this height.
  void Advance(double height);
  void Save(const Pages& pages) const;

  PageBuilder pages_;
  double x_ = 0, y_ = 0;
  Font font_ = {u"Times New Roman", 9.75};
  bool underline_ = false;
  unsigned colour_ = 0;
  Text title_, application_, work_file_;
  const PreviewTexts* texts_ = &kFrenchPreview;
};

// The surface of the hidden tool form, which is loaded where need be; the surface goes with it.
PreviewSurface& MyPrintPreview();

}  // namespace trovex

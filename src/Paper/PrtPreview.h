// One document on its way to paper: a grid, a text or an image is laid out on the preview surface
// of the tool form and shown; whoever looks at it may print it. One object a document.
#pragma once

#include <cstdint>
#include <optional>

#include "Paper/PreviewSurface.h"
#include "Ui/TextBox.h"

namespace trovex {

// Measures are centimetres or, named Co, twips. Arguments that are left out change nothing, but
// where a line says otherwise. Errors of the surface leave through every operation; a document that
// grows too long ends with the error box in the Display operations, and is shown as far as it goes.
class PrtPreview {
 public:
  using OptText = std::optional<Text>;
  using OptSize = std::optional<std::int16_t>;
  using OptInt = std::optional<int>;
  using OptColour = std::optional<unsigned>;
  using OptDouble = std::optional<double>;

  PrtPreview();
  // Unloads the tool form, and deletes the surface's file.
  ~PrtPreview();
  PrtPreview(const PrtPreview&) = delete;
  PrtPreview& operator=(const PrtPreview&) = delete;

  // A whole document: sets the page up, if no Display operation did so before, fills it and shows
  // it. `lOrientation` is 1 for portrait and 2 for landscape.
  void DisplayGrid(const Grid& laGrille, const OptText& leTitre = {}, const OptText& leLibelle = {},
                   OptInt lOrientation = {}, OptSize fntSize = {}, const OptText& fntName = {});
  void DisplayDBGrid(const Grid& laGrille, const OptText& leTitre = {},
                     const OptText& leLibelle = {}, OptInt lOrientation = {}, OptSize fntSize = {},
                     const OptText& fntName = {});
  void DisplayGridLandscape(const Grid& laGrille, const OptText& leTitre = {},
                            const OptText& libelle = {}, OptSize newSize = {});
  void DisplayDBGridLandscape(const Grid& laGrille, const OptText& leTitre = {},
                              const OptText& libelle = {}, OptSize newSize = {});
  void DisplayGridPortrait(const Grid& laGrille, const OptText& leTitre = {},
                           const OptText& leLibelle = {}, OptSize fntSize = {},
                           const OptText& fntName = {});
  void DisplayDBGridPortrait(const Grid& laGrille, const OptText& leTitre = {},
                             const OptText& leLibelle = {}, OptSize fntSize = {},
                             const OptText& fntName = {});
  void DisplayTextBox(const TextBox& lesInfos, const OptText& leTitre = {}, OptInt FlagType = {},
                      OptInt FlagAlign = {}, OptSize fntSize = {}, const OptText& fntName = {},
                      OptInt lOrientation = {}, OptColour laColor = {});
  void DisplayTextBoxLandscape(const TextBox& lesInfos, const OptText& leTitre = {},
                               OptInt FlagType = {}, OptInt FlagAlign = {}, OptSize fntSize = {},
                               const OptText& fntName = {}, OptColour laColor = {});
  void DisplayTextBoxPortrait(const TextBox& lesInfos, const OptText& leTitre = {},
                              OptInt FlagType = {}, OptInt FlagAlign = {}, OptSize fntSize = {},
                              const OptText& fntName = {}, OptColour laColor = {});
  void DisplayImage(const Text& fichier, const OptText& unTitre = {}, OptInt lOrientation = {},
                    OptDouble x = {}, OptDouble Y = {});
  // Shows what was put so far; the next Display operation sets the page up again.
  void Display();

  // Where the next output goes. The Co values raise kOverflow beyond 16 bits.
  double GetCurrentCmX();
  double GetCurrentCmY();
  std::int32_t GetCurrentCoX();
  std::int32_t GetCurrentCoY();
  void SetCurrentCmXY(OptDouble x = {}, OptDouble Y = {});
  void SetCurrentCoXY(OptInt x = {}, OptInt Y = {});

  // One text, as lines. `FlagType` 1 to 9 chooses bold, italic and underline, `FlagAlign` 0 left, 1
  // right, 2 centred. A blank text is an empty line.
  void PutString(const Text& LesData, OptInt FlagType = {}, OptInt FlagAlign = {},
                 OptSize fntSize = {}, const OptText& fntName = {}, OptColour laColor = {});
  // The same with an empty line behind it, or before it.
  void PutStringWithCrlfNext(const Text& LesData, OptInt FlagType = {}, OptInt FlagAlign = {},
                             OptSize fntSize = {}, const OptText& fntName = {},
                             OptColour laColor = {});
  void PutStringWithCrlfPrev(const Text& LesData, OptInt FlagType = {}, OptInt FlagAlign = {},
                             OptSize fntSize = {}, const OptText& fntName = {},
                             OptColour laColor = {});
  // A heading, if one is given, and the text of the box line by line. A text that ends in a line of
  // blanks goes on with empty lines until the surface has no page left.
  void PutTextBox(const TextBox& lesInfos, const OptText& leTitre = {}, OptInt FlagType = {},
                  OptInt FlagAlign = {}, OptSize fntSize = {}, const OptText& fntName = {},
                  OptColour laColor = {});
  // A line of up to three bold labels, each with its value behind it.
  void PutItemsString(const Text& a, const Text& b, const OptText& c = {}, const OptText& d = {},
                      const OptText& e = {}, const OptText& f = {}, OptSize fntSize = {},
                      const OptText& fntName = {}, OptColour laColor = {});
  // A bold label and its value at a place; `Y` left out stands for the current one. Without a label
  // the value stands at the left edge.
  void PutItemsStringCmXY(const Text& a, const Text& b, double x, OptDouble Y = {},
                          OptSize fntSize = {}, const OptText& fntName = {},
                          OptColour laColor = {});
  // Nothing where the file does not exist.
  void PutImage(const Text& fichier, double x, double Y);
  // `x2` left out centres the line on the page, `y2` left out makes it level; colour and width are
  // otherwise those of the surface.
  void PutLine(double x1, double y1, OptDouble x2 = {}, OptDouble y2 = {}, OptColour laColor = {},
               OptDouble epaisseur = {});
  // `NumeroPage` says whether pages bear their number from now on.
  void PutNewPage(std::optional<bool> NumeroPage = {});

  // A blank name and the size 0 change nothing.
  void SetFontName(const Text& newFont);
  void SetFontSize(std::int16_t newSize);

  // Centimetres to twips, rounded down, and back. Raises kOverflow beyond 32 bits.
  static std::int32_t CmToCo(double cm);
  static double CoToCm(double co) { return co / kCoParCm; }

 private:
  static constexpr double kCoParCm = 567;

  class FontScope;

  void InitDocument(const OptText& leLibelle, OptInt lOrientation, OptSize fntSize,
                    const OptText& fntName, std::optional<bool> bNumerotation);
  void PrepareDocument(const OptText& leLibelle, OptInt lOrientation, OptSize fntSize,
                       const OptText& fntName, std::optional<bool> bNumerotation);
  void SetLanguage();
  // False, after the error box, where the document had become too long.
  template <typename Step>
  bool FillsPages(Step step);
  void SetForeColor(unsigned laColor) { surface_.SetForeColor(laColor); }
  void SetFontType(int FlagType, bool bActif);
  void SetBold(bool bActif) { surface_.SetFontBold(bActif); }
  void SetItalic(bool bActif) { surface_.SetFontItalic(bActif); }
  void SetUnderline(bool bActif) { surface_.SetFontUnderline(bActif); }
  // Prints a part of a line at a place.
  void PrintAt(double x, double y, const Text& part);
  void PrintBoldAt(double x, double y, const Text& part);

  PreviewSurface& surface_;
  bool bDocumentPret = false;
  bool bNumeroPage = false;
};

}  // namespace trovex

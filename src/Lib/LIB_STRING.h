// Text operations: cutting at a NUL or a separator, replacing, reading fields of a list. Positions
// count from 1 and are 16-bit signed: an occurrence beyond 32767, or a search text of more
// characters, raises kOverflow, but where a function says that it reports.
#pragma once

#include "Platform/RuntimeError.h"
#include "Platform/Text.h"

namespace trovex {

// Position of the first occurrence, exact in case; 0 if there is none or the search is empty.
int iPosition(TextView sTexte, TextView sCherche);

// The text before the first NUL; the whole text if it holds none.
Text sTronqueAuNul(TextView sTexte);

// Every occurrence of `sCherche` replaced, from left to right, replacements not scanned again. An
// empty search, and a text that is empty or blank throughout, come back unchanged. Reports an
// overflow by the error box and gives an empty text then.
Text sChangeCaractere(TextView sTexte, TextView sCherche, TextView sRemplace);
// How many texts it has given up so far: who writes what it gives can tell that some are missing.
std::size_t iTextesAbandonnes();

// Each accented letter, blank, tab and sign that cannot stand in an anchor or a file name
// replaced by "_".
Text sRemplaceCaracteresSpeciaux(TextView sTexte);

// The text before the first occurrence of the separator; the whole text if there is none or either
// is empty.
Text sGaucheDe(TextView sTexte, TextView sSeparateur);
// The text behind the first occurrence. Without one the whole text, or an empty one if
// `bVideSiAbsent`; an empty text or separator gives the text whatever the flag.
Text sDroiteDe(TextView sTexte, TextView sSeparateur, bool bVideSiAbsent = false);

// The text before the last occurrence. It walks the segments and drops empty ones, so a leading
// separator is lost and a doubled one collapses.
Text sGaucheDernier(TextView sTexte, TextView sSeparateur);
// The text behind the last occurrence; `pCompteur` receives the number of separators passed.
Text sDroiteDernier(TextView sTexte, TextView sSeparateur, int* pCompteur = nullptr);

// Takes the next field off the list, freed of its outer quotes. A list that is blank throughout
// gives an empty field and stays as it is. Reports an overflow by the error box and gives an empty
// text then.
Text sExtraitChamp(Text& sListe, TextView sSeparateur);

// Constants for all users of the module, set at start-up.
extern Text sSautLigne;        // one line feed
extern Text sLigneTirets;      // 76 hyphens
extern Text sSautLigneTirets;  // a line break and the hyphens
void InitChaines();

// Carriage return and line feed.
inline constexpr TextView kCrLf = u"\r\n";

}  // namespace trovex

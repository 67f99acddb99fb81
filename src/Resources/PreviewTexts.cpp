#include "Resources/PreviewTexts.h"

namespace trovex {

const PreviewTexts kFrenchPreview = {
    .caption = u"Aperçu avant impression",
    .first = u"|<",
    .previous = u"<",
    .next = u">",
    .last = u">|",
    .one_page = u"&1 page",
    .two_pages = u"&2 pages",
    .fit_page = u"Page &entière",
    .fit_width = u"&Largeur",
    .print = u"&Imprimer...",
    .save = u"&PDF...",
    .close = u"&Fermer",
    .page = u"Page ",
    .of = u" sur ",
    .no_printer = u"Aucune imprimante n'est installée sur cet ordinateur.",
    .not_printed = u"L'imprimante a refusé le document : l'impression est incomplète.",
    .printing = u"Impression",
    .cancel = u"Annuler",
};

const PreviewTexts kEnglishPreview = {
    .caption = u"Print preview",
    .first = u"|<",
    .previous = u"<",
    .next = u">",
    .last = u">|",
    .one_page = u"&1 page",
    .two_pages = u"&2 pages",
    .fit_page = u"&Whole page",
    .fit_width = u"Page wi&dth",
    .print = u"&Print...",
    .save = u"&Save PDF...",
    .close = u"&Close",
    .page = u"Page ",
    .of = u" of ",
    .no_printer = u"No printer is installed on this computer.",
    .not_printed = u"The printer refused the document: it was not printed completely.",
    .printing = u"Printing",
    .cancel = u"Cancel",
};

}  // namespace trovex

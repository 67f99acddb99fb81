// Pieces of HTML text. No function writes a file; they read the HTML options by themselves. The
// forms of the tags are a format and stand as they are.
#pragma once

#include <optional>

#include "Platform/Text.h"

namespace trovex {

// The text with entities for accented letters, and one link each for the first "http://", "ftp://"
// and mail address in it. Tags pass unchanged. Raises kOverflow for positions beyond 32767.
Text sTexteVersHTML(const Text& sTexte);

// The head of a page: four lines, each with its end.
Text sEnteteHTML(const std::optional<Text>& vTitre = std::nullopt);
// The body tag.
Text sBaliseBody();
// The image tag, as a comment or not.
Text sBaliseImage(const Text& sSource, bool bCommentaire);
// The end of a page; the last line end is the caller's.
Text sFinHTML();

// An anchor that is never closed, with or without its text; empty for an empty text.
Text sAncreNom(const Text& sTexte, bool bGras, bool bAvecTexte,
               const std::optional<Text>& vAncre = std::nullopt);
// A link to an anchor of a file; empty for an empty text.
Text sLienAncre(const Text& sTexte, const Text& sFichier, const Text& sAttributs,
                const std::optional<Text>& vAncre = std::nullopt);

}  // namespace trovex

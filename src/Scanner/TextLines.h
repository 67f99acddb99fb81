// What the scanner reads of a file to name a program: first lines and the product's name.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "Lib/FileNumbers.h"
#include "Lib/Folder.h"

namespace trovex {

// The first two lines of a text file. It is opened for the first question, stays open and is read
// as far as what was asked for, so that a long line that is wanted in part costs no more.
class TextLines {
 public:
  explicit TextLines(FileInHand oFichier) : file_(std::move(oFichier)) {}
  ~TextLines();
  TextLines(const TextLines&) = delete;
  TextLines& operator=(const TextLines&) = delete;

  // The line, at most `longest` characters of it; empty where the file has fewer lines. A file that
  // cannot be opened or read is reported by the error box, gives an empty line, and is tried again
  // for the next question.
  Text sPremiereLigne(std::size_t longest = kLongestLine) { return Line(0, longest); }
  Text sDeuxiemeLigne(std::size_t longest = kLongestLine) { return Line(1, longest); }

 private:
  struct Known {
    Text text;
    bool whole = false;
  };

  Text Line(std::size_t number, std::size_t longest);
  void Read(std::size_t number, std::size_t longest);
  void PassLine();
  void Rewind();

  FileInHand file_;
  int open_ = -1;  // number of the open file
  std::array<Known, 2> lines_;
  std::size_t place_ = 0;  // of lines_: which one the file stands in
};

// What follows the key ProductName in a version record, to the record's end and not only to its
// NUL; "Ne contient pas de nom produit." where there is none.
Text vNomProduit(std::string_view record);

}  // namespace trovex

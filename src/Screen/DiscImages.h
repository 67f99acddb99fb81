// Disc images in the window: an image that is dropped on it or opened from its menu becomes a
// drive.
#pragma once

#include <vector>

#include "Screen/MainForm.h"

namespace trovex {

// The image becomes the next free drive letter from D: on, and its drive is chosen. What is no
// image gets a box. The letter stays until the program ends.
void OuvreImage(MainForm& form, const Text& sFichier);
// Each of the files, in their order.
void Form_DropFiles(MainForm& form, const std::vector<Text>& files);
// The entry of the window's menu: asks for the file.
void OuvrirImage_Click(MainForm& form);

// For a program or document that is about to be started: true where it lies inside an image, which
// no other program can read; a box then says so.
bool bRefuseDansImage(const Text& sFichier);

}  // namespace trovex

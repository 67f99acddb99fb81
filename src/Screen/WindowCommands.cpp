#include "Screen/WindowCommands.h"

#include "Html/Lib_OptionsHTML.h"
#include "Lib/FichesUnicode.h"
#include "Lib/Graphics.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_STRING.h"
#include "Platform/Platform.h"
#include "Resources/MainFormTable.h"
#include "Resources/Strings.h"
#include "Resources/Version.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/Lib_AboutDlg.h"

namespace trovex {
namespace {

// The drive and directory lists open where the program stands.
void ShowCurrentDirectory(MainForm& form) {
  IgnoringErrors([&] {
    form.ListeDrive.Reread();
    form.ListeRepertoire.SetPath(CurrentPlatform().GetCurrentDirectory());
  });
}

}  // namespace

void Form_Load(MainForm& form) {
  ShowCurrentDirectory(form);
  BusyOn();
  CenterForm(form);
  form.SetCaption(ResString(StringId::kNomProgramme) + u" " + Text(kVersionNumbers) + u" : " +
                  ResString(StringId::kRechercheLes));
  form.LireFichesUnicode.SetChecked(bFichesUnicode());
  form.InitTitresTableaux();
  Form_Resize(form);
}

void Form_Resize(MainForm& form) {
  if (form.Minimised()) return;
  if (form.Width() < kMainFormMinimum.width) {
    return form.Resize(kMainFormMinimum.width, form.Height());
  }
  if (form.Height() < kMainFormMinimum.height) {
    return form.Resize(form.Width(), kMainFormMinimum.height);
  }
  Line& line1 = form.Get<Line>(u"Line1", 0);
  form.ArrangeControls(form.ZoneDesTableaux.Tab(), [&](Control& control) {
    if (&control == &line1) TraceLigneHorizontale3D(form, line1);
  });
}

void Form_Paint(MainForm& form) {
  TraceLigneVerticale3D(form, form.Get<Line>(u"Line2"));
  TraceLigneHorizontale3D(form, form.Get<Line>(u"Line1", 0));
  TraceLigneHorizontale3D(form, form.Get<Line>(u"Line1", 1));
}

void Form_Unload(MainForm& form) {
  FermerApplication(form, true);
}

void CommandOption_Click() {
  BusyOn();
  Lib_OptionsHTML().ShowModal();
  BusyOff();
}

// The status line keeps its text when the window closes.
void Apropos_Click(MainForm& form) {
  BusyOn();
  AfficheAbout(ResString(StringId::kNomProgramme), u"v" + Text(kVersionNumbers), form.ImageAppli,
               ResString(StringId::kVersion32Bits));
}

void LireFichesUnicode_Click(MainForm& form) {
  EnregistreFichesUnicode(!bFichesUnicode());
  form.LireFichesUnicode.SetChecked(bFichesUnicode());
}

void ListeDrive_Change(MainForm& form) {
  const Text sAncien = form.ListeRepertoire.Path();
  try {
    form.ListeRepertoire.SetPath(form.ListeDrive.Drive());
    form.ListeDrive.Update();
  } catch (const RuntimeError& error) {
    IgnoringErrors([&] { form.ListeDrive.SetDrive(sAncien); });
    Err().Set(error);
    MessageErreur(ResString(StringId::kChangementLecteur) + Text(kCrLf) + Text(kCrLf) +
                  ResString(StringId::kLecteurCdRom) + Text(kCrLf) +
                  ResString(StringId::kLecteurVide));
  }
}

void UpdateDrives(MainForm& form) {
  form.ListeDrive.Update();
  form.ListeRepertoire.Update();
}

}  // namespace trovex

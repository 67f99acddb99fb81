#include "Screen/WindowCommands.h"

#include "Html/Lib_OptionsHTML.h"
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
  const double SW = form.ScaleWidth(), SH = form.ScaleHeight();
  TabControl& zone = form.ZoneDesTableaux;
  Line& line1 = form.Get<Line>(u"Line1", 0);
  form.ShapeOmbre(0).SetLeft(SW - form.ShapeOmbre(0).Width());
  form.Quitter.SetLeft(form.ShapeOmbre(0).Left() -
                       (form.ShapeOmbre(2).Left() - form.Explorer.Left()));
  line1.SetX2(SW - zone.Left());
  TraceLigneHorizontale3D(form, line1);
  zone.SetWidth(SW - 2 * zone.Left());
  form.TextInfo(6).SetLeft(zone.Width() + zone.Left() - form.TextInfo(6).Width());
  form.IconeFichier.SetLeft(form.TextInfo(6).Left() + zone.Left());
  form.TextInfo(5).SetWidth(form.TextInfo(6).Left() - form.TextInfo(5).Left());
  for (int i : {4, 3, 2, 1}) form.TextInfo(i).SetWidth(form.TextInfo(5).Width());
  form.ListFichier.SetHeight(SH - (form.PanelAide.Height() + form.ListFichier.Top()));
  TextBox& pane = form.TextInfo(0);
  pane.Move({pane.Left(), pane.Top(), zone.Width() - pane.Left(), form.ListFichier.Height()});
  Grid& grid = form.GridLogiciel(zone.Tab());
  grid.SetWidth(zone.Width() - 2 * grid.Left());
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
  CurrentPlatform().Forget();
  form.ListeDrive.Update();
  form.ListeRepertoire.Update();
}

}  // namespace trovex

// The desk: the engine with every screen of the system and the values the rules
// keep between events. Every handler is given the desk; the station above builds
// it and binds the rules to its controls.
#pragma once

#include <filesystem>
#include <string>

#include "core/engine.h"
#include "screens/boards.h"
#include "screens/dialogs.h"
#include "screens/frm_code.h"
#include "screens/frm_display_kashf.h"
#include "screens/frm_kashf.h"
#include "screens/frm_main.h"
#include "screens/frm_option.h"
#include "screens/handoffs.h"
#include "screens/shared_values.h"
#include "screens/small_screens.h"

namespace obsdesk {

class Desk : public Engine {
 public:
  Desk(std::filesystem::path bank_root, Services services);

  // ---- Screens ----------------------------------------------------------------
  obsdesk::frmAbout frmAbout;
  obsdesk::FrmMain FrmMain;
  obsdesk::FrmEntezar FrmEntezar;
  obsdesk::FrmERR FrmERR;
  obsdesk::FrmHelp FrmHelp;
  obsdesk::FrmOption FrmOption;
  obsdesk::FrmKashf FrmKashf;
  obsdesk::FrmDisplayKashf FrmDisplayKashf;
  obsdesk::FrmCode FrmCode;

  // The dialogs.
  obsdesk::FrmSelectStation FrmSelectStation;
  obsdesk::FrmFind FrmFind;
  obsdesk::FrmPol FrmPol;
  obsdesk::FrmBUFR FrmBUFR;  // the BUFR reader
  obsdesk::FrmWP FrmWP;
  obsdesk::FrmNTF FrmNTF;  // the pressure tendency dialog

  // Screens of the phenomenon pickers.
  obsdesk::FrmFeali FrmFeali;
  obsdesk::FrmGozashteh FrmGozashteh;
  obsdesk::Frmgozashteh1 Frmgozashteh1;
  obsdesk::FrmGozashteh2 FrmGozashteh2;
  obsdesk::FrmBCO FrmBCO;
  obsdesk::FrmBCOY FrmBCOY;
  obsdesk::FrmBCOBCOY FrmBCOBCOY;
  obsdesk::FrmZamin FrmZamin;
  obsdesk::FrmIRIX FrmIRIX;
  obsdesk::FrmTooltip FrmTooltip;

  // ---- Values the rules keep between events -------------------------------
  std::string Derive;        // the bank root as text, with a closing "/": the old drive
  int next_screen = 0;       // FrmMain's next-screen code, acted on by FrmEntezar
  CalendarState calendar;    // shared date and leap state of the conversions
  int SYNOP_coded = 0, METAR_coded = 0, SPECI_coded = 0;
  std::string SynopLine1, SynopLine2, MetarLine1, MetarLine2, SpeciLine1, SpeciLine2;
  int WeatherBoxSelect = 0;  // which box a picker board serves

  // Values kept between the rules of different topics.
  int humidity_mode = 0;     // 1: the observer types RH and the wet bulb is derived
  std::string GroundSign;    // sign figure of the ground minimum, kept for 3EsnTgTg
  std::string GroundTemp;    // the rounded ground minimum, two figures
  std::string SnowDepth;     // sss of the total snow, kept for 4E'sss
  // The clock hour at which the entry screen filled its date boxes (-1: not yet).
  // The step that moves a report made before midnight to the next day reads
  // this hour, so a report opened at 23:58 and coded at 00:02 keeps its date.
  int date_boxes_hour = -1;

  // Barometer and psychrometry: the results of DAMA_FASHAR and ModuleINVERS, kept
  // from call to call, and the relative humidity last typed in Text31.
  PressureResults pressure;
  double typed_RH = 0;
  std::string GroundCode;    // E or E' of the last state-of-ground button, kept for 4E'sss

  // The file-system seam of the bank's writers: none in the program, a test's
  // own where it stops or fails the save at a chosen call.
  FileSeam* file_seam = nullptr;
  // A save whose row stands but whose files could not all be written: its
  // intent is finished before the next save.
  bool files_waiting = false;
  // The hand-overs from one topic to a rule or screen of a topic above it, set
  // by the station when it binds the rules.
  Handoffs handoffs;
};

}  // namespace obsdesk

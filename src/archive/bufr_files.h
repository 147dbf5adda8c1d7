// The BUFR message beside each SYNOP bulletin: SYNOP.BUFR in the program's
// folder holds the latest message and is written anew with SYNOP.DAT; the day's
// file under the station's text tree (\TEXT\BUFR\B<nnn><yy><mm><dd>.BUFR) gains
// each message of that day, one after the other.
#pragma once

#include <string>

#include "coders/bufr.h"

namespace obsdesk {

class Desk;
class SaveJournal;

inline constexpr const char* kSynopBufr = "SYNOP.BUFR";

// The report of the row the browser shows: the station from the profile, the
// time from the date boxes and the hour, the values from its SYNOP text and its
// humidity.
BufrReport bufr_report(Desk& ws);

// The day's file of the report's key text, as a system name below the bank root.
std::string bufr_day_file(Desk& ws);

// Lists in the save's journal SYNOP.BUFR written anew and the message added to
// the day's file; the day's folder is made when it is missing. Throws when the
// message cannot be made.
void add_synop_bufr(Desk& ws, SaveJournal& journal);

}  // namespace obsdesk

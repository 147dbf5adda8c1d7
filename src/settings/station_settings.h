// The rules of FrmOption, the station settings: the menu of commands over the
// Station table, the locking of the boxes, the Enter walk, the barometer option
// pair and the constants of the formulae.
#pragma once

namespace obsdesk {

class Desk;

// The observer name written into every empty observer box by "UpDate".
inline constexpr const char* kDutyObserver = "ديدبان كشيك";
// The words of "UpDate": the profile comes into force at the next start.
inline constexpr const char* kRestartToApply = " تغييرات ثبت شد لطفا برنامه را مجددا اجرا نمائيد";

void wire_station_settings(Desk& ws);

}  // namespace obsdesk

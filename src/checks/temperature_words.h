// The words of the thermometer, barometer, soil and pan rules, spelt as the
// observer sees them (the odd spacings are the system's own).
#pragma once

namespace obsdesk::words {

// Thermometers.
inline constexpr const char* kCheckTemperature = "مــقدار دمـــا را چــك نمـائيـــد";
inline constexpr const char* kTemperatureOutOfRange = "مــقدار دمــا خارج از حد قابل قبول ميباشد";
inline constexpr const char* kExtremeOutOfRange = "مــقدار دما خارج از حد قابل قبول ميباشد";
inline constexpr const char* kConfirmBoxBefore = "آيا دمـــا در باكس قبلي را تائيد مينمائيد ؟";
inline constexpr const char* kConfirmTemperature = "آيا مــقدار دما را تائيد مينمائيد ؟";
inline constexpr const char* kConfirmTemperatureSnow = "آيا مقـدار دما را تائيد مينمائيد ؟";
inline constexpr const char* kHumidityInstead = "آيا بجاي دمـــا ي تر ميزان رطوبت راوارد مينمائيد ؟";
inline constexpr const char* kNoWeatherThreeHoursBefore = "هواي سه ساعت قبل موجود نيست";
inline constexpr const char* kEnterVerticalVisibility = "مــقدار ديد عــمــودي را وارد نمـائيـــد";
inline constexpr const char* kEnterTemperature12 = "لطفا دماي دوازده ساعت گذشته را وارد نمائيد";
inline constexpr const char* kEnterMaximum = "مــقدار دماي حداكثر را وارد نمائيد";
inline constexpr const char* kMinimumAboveMaximum = "مــقدار دماي حداقل بيشتر از دماي حداكثر است";
inline constexpr const char* kCheckMaximum = "مــقدار دماي حداكثر را چــك نمـائيـــد";

// Barometer and its attached thermometer.
inline constexpr const char* kCheckPressure = "مــقدار فـشــار را چــك نمـائيـــد";
inline constexpr const char* kPressureTooLow = "مــقدار فـشــار كمـتر از حد قابل قبـول ميباشـد";
inline constexpr const char* kPressureTooHigh = "مــقدار فـشــار بيشـتر از حد قابل قبـول ميباشـد";
inline constexpr const char* kConfirmPressure = "آيا مقـدار فشار را تائيد مينمائيد ؟";
inline constexpr const char* kAttachedOutOfRange = "مــقدار دمــاي پيوست خارج از حد قابل قبول ميباشد";
inline constexpr const char* kEnterAttached = "مــقدار دمــاي پيوست  را وارد  نمـائيـــد";

// Ground, snow, pan, evaporation, wind run, sunshine.
inline constexpr const char* kSetStateOfGround = "وضعيت زمين را مشخص نمائيد نمـائيـــد";
inline constexpr const char* kContradictsGround = "با وضعيت زمين مغايرت دارد";
inline constexpr const char* kCheckData = "مــقدار داده را چــك نمـائيـــد";
inline constexpr const char* kEnterPanMinimum = "مــقدار دماي مينيمم را وارد نمائيد";
inline constexpr const char* kPanMinimumAboveMaximum = "مــقدار دما حداقل بيشتر از دماي حداكثر است";
inline constexpr const char* kNegativeFromWater = "مـقدارآب اضافه شـده راچك نمائيد _ تبخيرمنفي؟";
inline constexpr const char* kNegativeEvaporation = "مــقدار تبخيرراچـك نمـائيــد _ تبخيرمنفي؟";
inline constexpr const char* kCheckWater = "مــقدار آب اضافه شـده را چــك نمـائيـــد";
inline constexpr const char* kEvaporationOutOfRange = "مــقدار تبخير خارج از حد قابل قبول ميباشد";
inline constexpr const char* kConfirmEvaporation = "آيا مــقدار تبخير را تائيد مينمائيد ؟";
inline constexpr const char* kCheckWindRun = "مــقدار سرعت باد را چــك نمـائيـــد";
inline constexpr const char* kCheckSunshine = "مــقدار ساعت آفتابي را مجددا وارد نمـائيـــد";

}  // namespace obsdesk::words

#include "path_kinds.h"
#include "text.h"
#include "values.h"

namespace
{
// Of several rows for a path the first counts.
struct PathKind {
    const char* path = "";
    const char* type = ""; // as in the value file, with blanks: "num 0 100 2"
};
struct PathStart {
    const char* path = "";
    const char* value = "";
};
} // namespace

static constexpr const char* PERCENT = "num 0 100 2";
static constexpr const char* TWICE = "num -200 200 2";
static constexpr const char* PATTERN = "num 1 304 0";
static constexpr const char* DME_PATTERN = "num 1001 9999 0";
static constexpr const char* CROSSPOINT_PATH = "word Hold,Change";
static constexpr const char* HUE_PATH = "word Short,Long,CW,CCW";
static constexpr const char* CURVE_PATH = "word Linear,S-Curve,Spline,Off,Step";

static constexpr PathKind kinds[] = {
    // What is on the air.
    {"*@*@Status@Key ON", "bool"},
    {"**@Status@Transition Position", PERCENT},
    {"**@FTB@Position", PERCENT},
    {"**@FTB@*", "bool"},
    {"*@Misc@Transition@Auto Trans", "action"},
    {"*@Misc@Transition@Cut", "action"},
    // Keys. Each key type has a clean mode and a position of its own.
    {"*@*@Type@Clean Mode@*", "bool"},
    {"*@*@Type@Key Position@*@*", "num -8 8 2"}, // H phase, left, right
    {"*@*@Type@Key Position@*", "bool"},
    {"*@*@Type@Chroma Adjust@Backing", "word Green,Blue,Red"},
    {"*@*@Type@*@Pattern", PATTERN},
    {"*@*@Edge@Zabton@Pattern", PATTERN},
    {"**@Mix Pattern@Pattern", PATTERN},
    {"**@Mask@Pattern Mask@Pattern", PATTERN},
    {"*@*@Transition@Direction", "word Normal,Reverse,Normal/Reverse"},
    {"*@*@Resizer@Process@Mode", "word Auto,Field,Frame"},
    {"*@*@Resizer@Process@Key Mode", "word Video,Field,Frame"},
    {"*@*@Transition@* DME Wipe Pattern", DME_PATTERN},
    {"*@*@Transition@* Wipe Pattern", PATTERN},
    {"*@*@Processed Key@DME Select@DME*", "bool"},
    {"*@*@Processed Key@Override@DME*", "bool"},
    {"*@*@Processed Key@Rotation", "num 0 3 0"},       // 1 about X, 2 about Y
    {"M/E-1@Key1@Processed Key@Monitor", "num 0 8 0"}, // of the whole system
    // The wipes of a bank, and the channels of an effects wipe.
    {"*@Wipe@Direction@*", "bool"},
    {"*@Wipe@*@Pattern", PATTERN},
    {"**@Pattern Select@Pattern", DME_PATTERN},
    {"**@Modify@Position@Position@*@*", TWICE},
    {"**@Modify@Position@Position@*", "bool"},
    {"**@Modify@Position@Center@*", "action"},
    {"**@Modify@Size@Size@*", PERCENT},
    {"**@Modify@Size@*", "bool"},
    {"**@Modify@Crop Mode@4:3 Crop@*", "action"},
    {"**@Modify@Crop Mode@Crop@Top@*", PERCENT},
    {"**@Modify@Crop Mode@Crop@Right@*", PERCENT},
    {"**@Modify@Crop Mode@Crop@*@*", "num -100 0 2"},
    {"**@Modify@Crop Mode@Crop@*", "bool"},
    // The effects units.
    {"DME@Status@3D Param@*@*@*", "num -999.99 999.99 2"},
    {"Engineering Setup@System@Install@Unit Config@Power@*", "word Single,Redundant"},
    {"Engineering Setup@System@Install@Unit Config@Option@*", "bool"},
    {"Engineering Setup@System@Install@Unit Config@Menu@*", "bool"},
    {"Aux/Mon@*@*@Auto Trans", "action"},
    {"Aux/Mon@*@*@Rate", "num 0 999 0"},
    {"Aux/Mon@*@*@Safe Area@*", PERCENT},
    {"DME@*@*@Texture@Number", "num 1 64 0"},
    {"Misc@Preview@Safe Area@*", PERCENT},
    {"Misc@Output@Output Phase@*", "num -1100 1100 0"},
    {"Misc@Output@Frame Delay@*", "num 0 1125 0"},
    {"Global Effect@*@Combine@Ch*", "bool"},
    {"Device@DDR/VTR@*@Set *", "action"},
    {"Device@DDR/VTR@*@Eject", "action"},
    {"Device@DDR/VTR@*@Recue", "action"},
    {"Device@DDR/VTR@*@Timeline@Set *", "action"},
    {"Device@DDR/VTR@*@Speed", "num -100 300 2"},
    {"Device@DDR/VTR@*@Shuttle", "num -50 50 1"},
    {"Device@DDR/VTR@*@Timeline@Speed", "num -100 300 2"},
    {"Device@P-BUS Timeline@*@Register", "num 0 99 0"},
    {"Device@P-BUS Timeline@*@Trigger", "num 1 8 0"},
    {"Device@GPI Timeline@*@Delay", "num 0 999 0"},
    {"SP@*@Unity All", "action"},
    {"SP@*@*@Unity", "action"},
    {"SP@*@Video Process@Luminance", "num 0 200 2"},
    {"SP@*@Video Process@Chroma", "num 0 200 2"},
    {"SP@*@Color Correct@Gain@*", "num 0 200 2"},
    {"SP@*@Timing@Frames", "num 0 8 0"},
    {"Router@Destination@*@Take", "action"},
    {"Router@Destination@*@Undo", "action"},
    {"Router@Salvo@*@Store", "action"},
    {"Router@Salvo@*@Preset", "action"},
    {"Router@Salvo@*@Take", "action"},
    {"Router@Salvo@*@Clear", "action"},
    {"Global Effect@*@Priority@Ch*", "word 1,2,3,4"},
    {"Global Effect@*@Trail@Ch*", "word Off,Pre,Post"},
    // Keyframe paths: of a region, of a part of it.
    {"Key Frame@Path@*@*@Xpt", CROSSPOINT_PATH},
    {"Key Frame@Path@*@*@*@Xpt", CROSSPOINT_PATH},
    {"Key Frame@Path@*@*@Hue", HUE_PATH},
    {"Key Frame@Path@*@*@*@Hue", HUE_PATH},
    {"Key Frame@Path@*@*@Curve", CURVE_PATH},
    {"Key Frame@Path@*@*@*@Curve", CURVE_PATH},
    {"**@Curve@Spline@*", "num -1 1 2"},
    // Registers.
    {"**@Temporary Duration", "num 0 999 0"}, // frames
    {"**@Temporary Duration@*", "num 0 999 0"},
    {"**@MP2 Auto Correct", "bool"},
    // The panel's setup.
    {"Engineering Setup@Panel@Config@10 Key Region Assign@Select@*", "bool"},
    {"Engineering Setup@Panel@Xpt Assign@Name Export@*", "bool"},
    {"Engineering Setup@Panel@Xpt Assign@Shift Mode@*", "word Hold,Lock,All Rows,Off"},
    {"Engineering Setup@Panel@Xpt Assign@User Color@*@Color", "num 0 9 0"},
    {"Engineering Setup@Panel@Xpt Assign@User Color@*@Brightness", "word High,Middle,Low"},
    {"Engineering Setup@Panel@Aux Assign@RTR Mode Set@Mode@*", "word Aux,Router,Aux/Router"},
    {"Engineering Setup@Panel@Aux Assign@RTR Mode Set@Level@*", "word All,Each"},
    {"Engineering Setup@Panel@Aux Assign@RTR Mode Set@Source Table Assign@*",
     "word Table 1,Table 2,Table 3,Table 4"},
    {"Info@Operation Setup Data@V/K Pair Assign", "bool"},
    // What the keys of a bank share.
    {"*@Misc@Transition@Transition Mode", "word Full,Limit"},
    {"*@Misc@Transition@*", "bool"},
    {"*@Misc@Key Priority@*Key Priority", "order"},
    {"*@Misc@Key Priority@Enable", "bool"},
    {"*@Misc@Key Assign@Key*", "word ,Off,Main,Sub,Both"}, // empty: as the setup says
    {"*@Misc@Clip Transition@Position", PERCENT},
    {"*@Misc@Clip Transition@Clip Duration", "num 1 215999 0"}, // frames
};

// In a switcher that nobody has touched.
static constexpr PathStart starts[] = {
    {"**@Density", "100"},
    {"**@* Rate", "30"},
    {"**@Rate", "30"},
    {"**@Wipe@Size", "100"},
    {"**@Video Process@Luminance", "100"},
    {"**@Video Process@Chroma", "100"},
    {"**@Video Adjust@Luminance", "100"},
    {"**@Video Adjust@Chroma", "100"},
    {"*@*@Type@Key Fill", "Key Bus"},
    {"*@*@Type@Key Source", "Self"},
    {"*@*@Type@Key Type@Chroma@Hue", "120"},
    {"*@*@Type@Key Type@*Pattern@Size", "50"},
    {"*@*@Type@Signal Select@Fill", "CAM1"},
    {"*@*@Type@Signal Select@Source", "CAM2"},
    {"*@*@Status@Source Name", "CAM1"},
    {"*@*@Edge@Edge", "Normal"},
    {"*@*@Edge@Edge Fill", "Matte"},
    {"*@*@*Mask@Box@Left", "-50"},
    {"*@*@*Mask@Box@Right", "50"},
    {"*@*@*Mask@Box@Top", "50"},
    {"*@*@*Mask@Box@Bottom", "-50"},
    {"*@*@*Mask@Pattern Mask@Size", "50"},
    {"*@*@Resizer@Size", "100"},
    {"*@*@Resizer@Aspect@* Size", "100"},
    {"*@*@Processed Key@Size*", "100"},
    // Edges as places: at a hundred is the whole picture.
    {"**@Crop@Left", "-100"},
    {"**@Crop@Bottom", "-100"},
    {"**@Crop@H", "-100"},
    {"**@Crop@All", "-100"},
    {"**@Crop@Right", "100"},
    {"**@Crop@Top", "100"},
    {"**@Crop@V", "100"},
    {"**@Crop Mode@Crop@Left@*", "-100"},
    {"**@Crop Mode@Crop@Bottom@*", "-100"},
    {"**@Crop Mode@Crop@Right@*", "100"},
    {"**@Crop Mode@Crop@Top@*", "100"},
    {"*@*@Transition@ON Transition Type", "Mix"},
    {"*@*@Transition@OFF Transition Type", "Mix"},
    {"**@Color 1@Luminance", "50"},
    {"**@Color 1@Saturation", "50"},
    {"**@Color 2@Luminance", "50"},
    {"**@Color 2@Saturation", "50"},
    {"**@Color 2@Hue", "180"},
    {"*@Wipe@Direction@Normal", "true"},
    {"**@Modify@Size@Size@*", "100"},
    {"DME@Status@3D Param@Mode Status@Reference", "1,1,0"}, // the local target of channel 1
    {"DME@Status@3D Param@*@Size@*", "100"},
    {"DME@Transform@3D Trans@Size@*", "100"},
    {"Aux/Mon@*@*@Source", "CAM1"},
    {"Aux/Mon@*@*@Side Flags", "Off"},
    {"Aux/Mon@*@*@Aspect", "16:9"},
    {"DME@Status@Texture Name@1", "MARBLE"},
    {"DME@Status@Texture Name@2", "WOOD"},
    {"DME@Status@Texture Name@3", "CLOTH"},
    {"DME@Status@Texture Name@4", "RAIN"},
    {"DME@*@*@Texture@Size@Size", "100"},
    {"DME@*@*@Texture@Density@Density", "100"},
    {"Misc@Port@Enable *@*", "true"},
    {"Misc@Panel@Brightness@*", "80"},
    {"Misc@Panel@Auto Dim@Minutes", "10"},
    {"Misc@Panel@Source Names", "true"},
    {"Misc@Output@Ancillary", "Pass"},
    {"Misc@Preview@Safe Area@*", "90"},
    {"Misc@Side Flags@Side Flags", "Auto"},
    {"Misc@Side Flags@Fill", "Black"},
    {"Misc@User@User", "1"},
    {"Misc@User@Knob Speed", "100"},
    {"Engineering Setup@System@Install@Unit Config@Power@*", "Single"},
    {"Engineering Setup@System@Install@Unit Config@Menu@*", "true"},
    {"Color Bkgd@*@Mode", "Flat"},
    {"CCR@*@Insert@Insert", "Input"},
    {"CCR@*@RGB Clip@Color Space", "YUV"},
    {"Global Effect@*@Priority@Mode", "Auto"},
    {"Global Effect@*@Priority@Ch1", "1"},
    {"Global Effect@Ch1-Ch4@Priority@Ch2", "2"},
    {"Global Effect@Ch1-Ch2@Priority@Ch2", "1"}, // of pairs the second channel speaks for both
    {"Global Effect@Ch5-Ch6@Priority@Ch2", "1"},
    {"Global Effect@*@Priority@Ch2", "2"},
    {"Global Effect@*@Priority@Ch3", "3"},
    {"Global Effect@*@Priority@Ch4", "4"},
    {"Global Effect@*@Priority@Ch5", "1"},
    {"Global Effect@*@Priority@Ch6", "2"},
    {"Global Effect@*@Priority@Ch7", "3"},
    {"Global Effect@*@Priority@Ch8", "4"},
    {"Global Effect@*@Brick@Faces", "1"},
    {"Global Effect@*@Trail@Ch*", "Off"},
    {"Global Effect@*@Fill", "Matte"},
    {"Global Effect@*@Combine@Join", "Plain"},
    {"Global Effect@*@Light/Bkgd@Source", "Distant"},
    {"Global Effect@*@3D Trans@Size@*", "100"},
    {"*@Misc@Transition@Flip-Flop", "true"},
    {"*@Misc@Transition@Mix", "true"},
    {"*@Misc@Transition@Next Transition@Bkgd", "true"},
    {"*@Misc@Transition@Super Mix@* Video", "100"},
    {"*@Misc@Key Priority@*Key Priority", "1,2,3,4,1,2,3,4"},
    {"*@Misc@Clip Transition@End", "100"},
    {"*@Misc@Clip Transition@Speed", "100"},
    {"*@Misc@Clip Transition@Clip Name", "OPENER"},
    {"*@Misc@Clip Transition@Clip Duration", "300"},
    {"*@Misc@Clip Transition@Bkgd Name", "CAM1"},
    {"*@Misc@Clip Transition@Player", "Stop"},
    {"*@Misc@Clip Transition@Time Code", "00:00:00:00"},
    {"*@Status@Xpt Assign@A", "CAM1"},
    {"*@Status@Xpt Assign@B", "CAM2"},
    {"*@Status@Xpt Assign@UTIL1", "CAM31"},
    {"*@Status@Xpt Assign@UTIL2", "CAM32"},
};

static ValueType type_of(const char* text)
{
    const std::string type = text;
    const size_t blank = type.find(' ');
    std::vector<std::string> fields = {type.substr(0, blank)};
    if (blank != std::string::npos) {
        const std::string rest = type.substr(blank + 1); // words may hold blanks, numbers don't
        const bool is_number = fields[0] == "num";
        for (const std::string& field : Text_Split(rest, is_number ? ' ' : '\n'))
            fields.push_back(field);
    }
    ValueType parsed;
    return Values_ParseType(fields, &parsed) ? parsed : ValueType{};
}

ValueType PathKinds_Type(const std::string& path)
{
    for (const PathKind& row : kinds)
        if (Text_MatchesPath(path, row.path))
            return type_of(row.type);
    return {};
}

std::string PathKinds_Start(const std::string& path)
{
    for (const PathStart& row : starts)
        if (Text_MatchesPath(path, row.path))
            return row.value;
    return "";
}

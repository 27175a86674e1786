#include "Catalogues.h"

namespace zarvik {
namespace {

/// The errors of the Universal format. The texts are what readers of logs search for.
// clang-format off: one entry a line
constexpr CatalogueEntry entries[] = {
    {"UNV100", "UNV00", "Not enough characters. Required ''{0}'' , available ''{1}''."},
    {"UNV101", "UNV01", "Section tag ''{0}'' expected. Found ''{1}''."},
    {"UNV102", "UNV02", "Section tag separator ''{0}'' expected. Found ''{1}''."},
    {"UNV103", "UNV03", "Missing delimiter ''{0}''"},
    {"UNV104", "UNV04", "Illegal integral length - ''{0}''"},
    {"UNV105", "UNV05", "The sign byte in a packed decimal should be one of 'D', 'C' or 'F'. Found ''{0}''."},
    {"UNV106", "UNV06", "Unexpected characters at the end of message."},
    {"UNV107", "UNV07", "Unexpected characters at the end of sequence."},
    {"UNV108", "UNV08", "Unexpected characters at the end of section ''{0}''."},
    {"UNV109", "UNV09", "Tag ''{0}'' expected in ''{1}''."},
    {"UNV110", "UNV10", "Tag-value Separator ''{0}'' expected in ''{1}''."},
    {"UNV111", "UNV11", "Illegal boolean value ''{0}''."},
    {"UNV112", "UNV12", "Illegal boolean value, it can''t be empty."},
    {"UNV113", "UNV13", "Unexpected ''.'' character while parsing floating point field."},
    {"UNV114", "UNV14", "Float field''s value ''{0}'' is not in specified format ''{1}''."},
    {"UNV115", "UNV15", "Double field''s value ''{0}'' is not in specified format ''{1}''."},
    {"UNV116", "UNV16", "Parsing individual records is not supported in this version."},
    {"UNV117", "UNV17", "The length of the length preceded field ({0}) is less than the minimum length ({1})."},
    {"UNV118", "UNV18", "The length of the length preceded field ({0}) exceeds the maximum length ({1}) allowed."},
    {"UNV119", "UNV19", "Mandatory field ''{0}'' is missing"},
    {"UNV120", "UNV20", "Duplicate field ''{0}''."},
    {"UNV121", "UNV21", "Duplicate field ''{0}'' [''{1}'']."},
    {"UNV122", "UNV22", "Incorrect filler value. Expected ''{0}'' , found ''{1}''."},
    {"UNV123", "UNV23", "Missing choice element ''{0}''. None of choices match with the message."},
    {"UNV124", "UNV24", "The mandatory field ''{0}'' is missing."},
    {"UNV125", "UNV25", "Record size (''{0}'') exceeded upper limit - ''{1}''."},
    {"UNV126", "UNV26", "Cannot represent ''{0}'' in ''{1}'' digits."},
    {"UNV127", "UNV27", "Cannot represent ''{0}'' in ''{1}'' characters."},
    {"UNV128", "UNV28", "Cannot represent output value ''{0}''."},
    {"UNV129", "UNV29", "Packed decimal overflow."},
    {"UNV130", "UNV30", "More than one choice has a non-null value"},
    {"UNV131", "UNV31", "At least one of the choices must have non-null value"},
};
// clang-format on
}  // namespace

const PropertyResourceBundle& universalResources() {
  static const PropertyResourceBundle& bundle = *new PropertyResourceBundle(bundleOf(entries));
  return bundle;
}

}  // namespace zarvik

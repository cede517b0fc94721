// Published constants of the spreadsheet object model.
#pragma once

#include <cstdint>

namespace rangewerks::excel {

/// Index of Application.International.
enum InternationalIndex : std::int32_t {
  xlDecimalSeparator = 3,
  xlListSeparator = 5,
  xlDateOrder = 32,
};

/// Range.HorizontalAlignment.
enum HorizontalAlignment : std::int32_t {
  xlGeneral = 1,  ///< texts to the left, numbers to the right
  xlLeft = -4131,
  xlRight = -4152,
};

/// Index of Range.Borders.
enum BordersIndex : std::int32_t {
  xlEdgeLeft = 7,
  xlEdgeTop = 8,
  xlEdgeBottom = 9,
  xlEdgeRight = 10,
  xlInsideHorizontal = 12,
};

/// Border.LineStyle.
enum LineStyle : std::int32_t {
  xlContinuous = 1,
  xlDouble = -4119,
  xlLineStyleNone = -4142,
};

/// Border.Weight.
enum BorderWeight : std::int32_t {
  xlHairline = 1,
  xlThin = 2,
  xlThick = 4,
};

/// Interior.ColorIndex.
enum ColorIndex : std::int32_t {
  xlColorIndexNone = -4142,  ///< no fill
};

/// The first argument of Validation.Add.
enum ValidationType : std::int32_t {
  xlValidateInputOnly = 0,
  xlValidateWholeNumber = 1,
  xlValidateDecimal = 2,
  xlValidateList = 3,
  xlValidateTextLength = 6,
};

/// What happens to an entry that the rule refuses.
enum ValidationAlertStyle : std::int32_t {
  xlValidAlertStop = 1,
};

/// How a rule compares the entry with its formula.
enum ValidationOperator : std::int32_t {
  xlGreater = 5,
  xlLessEqual = 8,
};

/// The type of a conditional format.
enum FormatConditionType : std::int32_t {
  xlExpression = 2,
};

/// Index of Application.ShortcutMenus.
enum ShortcutMenuIndex : std::int32_t {
  xlWorksheetCell = 3,
};

/// The type of a custom document property, given to CustomDocumentProperties.Add.
enum DocumentPropertyType : std::int32_t {
  msoPropertyTypeBoolean = 2,
};

/// The type of a code module, given to VBComponents.Add.
enum ComponentType : std::int32_t {
  vbext_ct_StdModule = 1,
};

/// Which procedure of a name is meant.
enum ProcedureKind : std::int32_t {
  vbext_pk_Proc = 0,  ///< an ordinary one, no face of a property
};

/// Error numbers of cells (Variant's ErrorValue::Number).
enum CellError : std::int32_t {
  xlErrNull = 2000,
  xlErrDiv0 = 2007,
  xlErrValue = 2015,
  xlErrRef = 2023,
  xlErrName = 2029,
  xlErrNum = 2036,
  xlErrNA = 2042,
};

}  // namespace rangewerks::excel

#pragma once

#include "zkstring.h"

namespace zarvik {

/// The words in which errors are told as data: the keys of an error's context properties, and the values of its
/// phase, type and severity.
class ExceptionObject {
 public:
  virtual ~ExceptionObject() noexcept(false) = default;  // errors are counted objects, whose destructors may throw

  virtual const zkstring& getMessage() const = 0;

  // Keys of context properties.
  static const zkstring& getERROR_PHASE() { return ERROR_PHASE; }
  static const zkstring& getERROR_TYPE() { return ERROR_TYPE; }
  static const zkstring& getERROR_FIELD() { return ERROR_FIELD; }
  static const zkstring& getLINE() { return LINE; }
  static const zkstring& getCOLUMN() { return COLUMN; }
  static const zkstring& getINDEX() { return INDEX; }
  static const zkstring& getINTERNAL_CODE() { return INTERNAL_CODE; }
  // Values of ERROR_PHASE.
  static const zkstring& getINPUT_PHASE() { return INPUT_PHASE; }
  static const zkstring& getOUTPUT_PHASE() { return OUTPUT_PHASE; }
  static const zkstring& getINTERNAL_MESSAGE_PHASE() { return INTERNAL_MESSAGE_PHASE; }
  // Values of ERROR_TYPE.
  static const zkstring& getERROR_TYPE_PARSING() { return ERROR_TYPE_PARSING; }
  static const zkstring& getERROR_TYPE_REQUIRED() { return ERROR_TYPE_REQUIRED; }
  static const zkstring& getERROR_TYPE_VALIDATION() { return ERROR_TYPE_VALIDATION; }
  static const zkstring& getERROR_TYPE_MAPPING() { return ERROR_TYPE_MAPPING; }
  static const zkstring& getERROR_TYPE_PROCESSING() { return ERROR_TYPE_PROCESSING; }
  static const zkstring& getERROR_TYPE_OUTPUT() { return ERROR_TYPE_OUTPUT; }
  // Values of the field Severity.
  static const zkstring& getEXCEPTION_SEVERITY_FATAL() { return EXCEPTION_SEVERITY_FATAL; }
  static const zkstring& getEXCEPTION_SEVERITY_ERROR() { return EXCEPTION_SEVERITY_ERROR; }
  static const zkstring& getEXCEPTION_SEVERITY_WARN() { return EXCEPTION_SEVERITY_WARN; }

 private:
  static const zkstringliteral ERROR_PHASE;
  static const zkstringliteral ERROR_TYPE;
  static const zkstringliteral ERROR_FIELD;
  static const zkstringliteral LINE;
  static const zkstringliteral COLUMN;
  static const zkstringliteral INDEX;
  static const zkstringliteral INTERNAL_CODE;
  static const zkstringliteral INPUT_PHASE;
  static const zkstringliteral OUTPUT_PHASE;
  static const zkstringliteral INTERNAL_MESSAGE_PHASE;
  static const zkstringliteral ERROR_TYPE_PARSING;
  static const zkstringliteral ERROR_TYPE_REQUIRED;
  static const zkstringliteral ERROR_TYPE_VALIDATION;
  static const zkstringliteral ERROR_TYPE_MAPPING;
  static const zkstringliteral ERROR_TYPE_PROCESSING;
  static const zkstringliteral ERROR_TYPE_OUTPUT;
  static const zkstringliteral EXCEPTION_SEVERITY_FATAL;
  static const zkstringliteral EXCEPTION_SEVERITY_ERROR;
  static const zkstringliteral EXCEPTION_SEVERITY_WARN;
};

}  // namespace zarvik

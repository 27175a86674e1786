#include "ExceptionObject.h"

namespace zarvik {

constinit const zkstringliteral ExceptionObject::ERROR_PHASE("Error-Phase");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE("Error-Type");
constinit const zkstringliteral ExceptionObject::ERROR_FIELD("Error-Field");
constinit const zkstringliteral ExceptionObject::LINE("line");
constinit const zkstringliteral ExceptionObject::COLUMN("column");
constinit const zkstringliteral ExceptionObject::INDEX("index");
constinit const zkstringliteral ExceptionObject::INTERNAL_CODE("Internal-Code");
constinit const zkstringliteral ExceptionObject::INPUT_PHASE("Input");
constinit const zkstringliteral ExceptionObject::OUTPUT_PHASE("Output");
constinit const zkstringliteral ExceptionObject::INTERNAL_MESSAGE_PHASE("Internal Message");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE_PARSING("Parsing");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE_REQUIRED("Required");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE_VALIDATION("Validation");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE_MAPPING("Mapping");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE_PROCESSING("Processing");
constinit const zkstringliteral ExceptionObject::ERROR_TYPE_OUTPUT("Output Writing");
constinit const zkstringliteral ExceptionObject::EXCEPTION_SEVERITY_FATAL("fatal");
constinit const zkstringliteral ExceptionObject::EXCEPTION_SEVERITY_ERROR("error");
constinit const zkstringliteral ExceptionObject::EXCEPTION_SEVERITY_WARN("warn");

}  // namespace zarvik

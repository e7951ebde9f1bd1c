// The explorer extension's library, by which the agent tells it of a logout: it notes each code.
#include <string>

#include "lab/stand_ins/exported.h"
#include "lab/stand_ins/process.h"

LAB_EXPORTED SendMsgToApp(INT code) {
  lab::NoteCall("SendMsgToApp " + std::to_string(code));
  return 0;
}

#pragma once

#include "script/parser.h"
#include "script/session.h"

/// The commands of a script. Each takes as many arguments as its row in the driver's table allows; arguments that it
/// cannot understand are a ScriptError.
namespace wb::script::commands {

// What a user does; an action on a control that a user cannot reach prints "[refused]" and its name.
void menu(Session& session, const Arguments& arguments);
void toolbar(Session& session, const Arguments& arguments);
void click(Session& session, const Arguments& arguments);
void dblclick(Session& session, const Arguments& arguments);
void focus(Session& session, const Arguments& arguments);
void type(Session& session, const Arguments& arguments);
void enter(Session& session, const Arguments& arguments);
void keyup(Session& session, const Arguments& arguments);
void pick(Session& session, const Arguments& arguments);
void modify(Session& session, const Arguments& arguments);
void close(Session& session, const Arguments& arguments);
void drop(Session& session, const Arguments& arguments);
void goToByte(Session& session, const Arguments& arguments);
void timing(Session& session, const Arguments& arguments);
void undo(Session& session, const Arguments& arguments);
void redo(Session& session, const Arguments& arguments);
void paste(Session& session, const Arguments& arguments);
void find(Session& session, const Arguments& arguments);

// What is read from the program and written into it, past the user.
void poke(Session& session, const Arguments& arguments);
void get(Session& session, const Arguments& arguments);
void expect(Session& session, const Arguments& arguments);
void var(Session& session, const Arguments& arguments);
void let(Session& session, const Arguments& arguments);
void cells(Session& session, const Arguments& arguments);
void focused(Session& session, const Arguments& arguments);
void windows(Session& session, const Arguments& arguments);
void report(Session& session, const Arguments& arguments);
void history(Session& session, const Arguments& arguments);
void call(Session& session, const Arguments& arguments);
void run(Session& session, const Arguments& arguments);

// What the platform answers and what it has kept.
void answer(Session& session, const Arguments& arguments);
void dialog(Session& session, const Arguments& arguments);
void printer(Session& session, const Arguments& arguments);
void printed(Session& session, const Arguments& arguments);
void clock(Session& session, const Arguments& arguments);
void osversion(Session& session, const Arguments& arguments);
void reader(Session& session, const Arguments& arguments);
void registry(Session& session, const Arguments& arguments);
void settings(Session& session, const Arguments& arguments);

} // namespace wb::script::commands

// Stand-ins for the user's web browser and the system's help viewer. They answer in nvhost's own process alone: what
// the component calls is led to them, and nothing of the machine is replaced. Nothing is shown, and each request is
// noted in the installation in use:
//
//   Browser.txt  the address that is to be opened
//   Help.txt     Z:\...\NORVIK.CHM>ShowTopic command 15 topic 506000012 for frmRandomInfo
//
// `command` is the viewer's command number (15: a topic by its context number); the last word is the component's name
// of the window that asks.
#pragma once

namespace nv::host {

/// Leads the calls of the component, which has been loaded, to the stand-ins.
void divertBrowserAndHelp();

}  // namespace nv::host

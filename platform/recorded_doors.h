// Doors to the adapter that record the traffic and pass it on unchanged. Made by main when a
// recording is requested.
#pragma once

#include "serial_port_profile.h"
#include "stream_pair.h"

class conversation_recorder;

// `over` names the transport in the recording.
stream_pair_factory recorded_streams(stream_pair_factory make, conversation_recorder& recorder,
                                     const char* over);

// `door` and `recorder` outlive it.
std::unique_ptr<serial_port_profile> recorded_serial_port(serial_port_profile& door,
                                                          conversation_recorder& recorder);

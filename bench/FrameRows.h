// SPDX-License-Identifier: MIT
#pragma once

#include "Measure.h"
#include "Stage.h"

/// The interface drawn against the floor and the peers: rows frame_floor, frame_peer, submit_floor and submit_peer.
/// @param pictureFolder where what each of them draws is written, for who wants to look
/// @throws std::runtime_error when one of them draws something else than the interface does
std::vector<Row> FrameRows(Stage& stage, const std::string& pictureFolder);

/// Row submit_growth.
Row SubmitGrowthRow(Stage& stage);

// SPDX-License-Identifier: MIT
#pragma once

#include "Measure.h"
#include "Stage.h"

/// Row mouse_move.
Row MouseMoveRow(Stage& stage);

/// Rows resize_100 and resize_growth.
std::vector<Row> ResizeRows(Stage& stage);

/// Row thumbnail_first.
Row ThumbnailRow(Stage& stage);
/// Row panel_growth, with the text measurements of a row.
Row PanelRow(Stage& stage);
/// Row title.
Row TitleRow(Stage& stage);

/// Rows startup and memory; the interface is closed and started again many times.
std::vector<Row> StartRows(Stage& stage);

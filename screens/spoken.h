// What a screen reader gets to know of pictures: their words are put together when it asks.
#pragma once

// For every picture_view and thumbnail_strip; once is enough, more does no harm.
void speak_for_pictures();

// One function per family of files the asset tool writes.
#pragma once

class AssetOutput;

void drawIcons(AssetOutput &out);        // ico/*.ico, ico/print.bmp
void drawTitleFrames(AssetOutput &out);  // gif/sphfra/sphf0000.jpg .. sphf0049.jpg
void drawRewardSets(AssetOutput &out);   // jpg2/<set>00.jpg .. <set>20.jpg
void drawStarSeries(AssetOutput &out);   // reward/stars000.jpg .. stars319.jpg
void writeHarpSounds(AssetOutput &out);  // wav/harp1.wav .. harp5.wav
void drawLogos(AssetOutput &out);        // bmp/morvane2.bmp, morvane3.bmp, morv0000.gif .. 0019, smmv0000.gif .. 0019
void drawCelebrations(AssetOutput &out); // gif/grstel/grstel00.jpg .. and the rest of the list
void drawHalvesPictures(AssetOutput &out); // gif/leaf.gif and the five other pictures of Halves and Quarters
void drawWorksheets(AssetOutput &out);   // wmf/y2print1.wmf, u1print1, y5print4, u4print4, y6print3, u5print3

// Renders a lit, shaded ball whose surface colour is given as a function of
// longitude and latitude. Used by the turning title sphere, the sphere built
// from slices and the Earth.
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

class QPainter;

#include <functional>

struct SphereView
{
    double tiltDegrees = 15;  // north pole tipped towards the viewer
    double spinDegrees = 0;   // surface turned this far to the right
    int samplesPerSide = 3;   // supersampling for smooth edges
};

// Longitude 0 faces the viewer (before spinning), positive to the right;
// latitude 90 is the north pole. A transparent colour leaves that spot empty.
using SphereSurface = std::function<QColor(double longitude, double latitude)>;

// The ball is centred in a transparent square image of side ceil(2r) + 2.
QImage renderSphere(double radius, const SphereView &view, const SphereSurface &surface);

// Draws the ball of radius r centred on centre, rendered pixel by pixel at the
// size the painter will draw it (so it stays sharp on a larger twin too).
void drawSphere(QPainter &p, QPointF centre, double radius, const SphereView &view,
                const SphereSurface &surface);

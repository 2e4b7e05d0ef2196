// Aircraft as seen from their left side, and far away.
#include "sample_aircraft.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

/// Outlines of an aircraft from its side: x from 0 at the nose to 1 at the tail, y downward from its axis.
struct Profile {
  QPolygonF body;
  QPolygonF fin;
  QPolygonF canopy;
  double propeller_radius = 0.16;
  double propeller_x = 0.035;
  double spinner = 0.045;
  double wing_from = 0.27;
  double wing_to = 0.55;
  double wing_y = 0.045;
  QPolygonF nacelle;  ///< engine on the wing, empty for none
  double nacelle_x = 0;
  bool nose_propeller = true;
  bool exhausts = true;
};

Profile profile_of(Shape shape) {
  Profile profile;
  profile.body = {{{0.035, -0.040},
                   {0.10, -0.058},
                   {0.26, -0.066},
                   {0.40, -0.070},
                   {0.58, -0.066},
                   {0.80, -0.040},
                   {0.985, -0.018},
                   {0.985, 0.012},
                   {0.82, 0.026},
                   {0.62, 0.062},
                   {0.50, 0.090},
                   {0.40, 0.078},
                   {0.24, 0.070},
                   {0.10, 0.060},
                   {0.035, 0.042}}};
  profile.fin = {{{0.845, -0.028},
                  {0.895, -0.135},
                  {0.930, -0.162},
                  {0.972, -0.155},
                  {1.0, -0.090},
                  {1.0, 0.005},
                  {0.965, 0.018}}};
  profile.canopy = {{{0.355, -0.066}, {0.405, -0.118}, {0.455, -0.130}, {0.515, -0.116}, {0.60, -0.062}}};
  switch (shape) {
    case Shape::kElliptical:
      profile.fin = {{{0.845, -0.028},
                      {0.890, -0.120},
                      {0.930, -0.150},
                      {0.975, -0.138},
                      {1.0, -0.070},
                      {0.995, 0.008},
                      {0.965, 0.018}}};
      profile.body[9] = QPointF(0.62, 0.046);
      profile.body[10] = QPointF(0.50, 0.064);
      break;
    case Shape::kRadial:
      profile.body = {{{0.045, -0.070},
                       {0.075, -0.088},
                       {0.22, -0.088},
                       {0.38, -0.080},
                       {0.60, -0.070},
                       {0.82, -0.040},
                       {0.985, -0.018},
                       {0.985, 0.012},
                       {0.80, 0.046},
                       {0.55, 0.090},
                       {0.35, 0.098},
                       {0.20, 0.092},
                       {0.075, 0.088},
                       {0.045, 0.070}}};
      profile.canopy = {{{0.37, -0.076}, {0.41, -0.124}, {0.46, -0.136}, {0.52, -0.122}, {0.62, -0.066}}};
      profile.spinner = 0.030;
      profile.propeller_x = 0.04;
      break;
    case Shape::kDiveBomber:
      profile.canopy = {{{0.29, -0.066}, {0.33, -0.118}, {0.42, -0.130}, {0.53, -0.122}, {0.62, -0.060}}};
      profile.fin = {{{0.86, -0.030}, {0.885, -0.145}, {0.985, -0.155}, {1.0, -0.02}, {0.97, 0.015}}};
      profile.body[10] = QPointF(0.50, 0.066);
      break;
    case Shape::kTwin:
      profile.body = {{{0.02, -0.010},
                       {0.05, -0.046},
                       {0.14, -0.066},
                       {0.26, -0.072},
                       {0.50, -0.062},
                       {0.80, -0.040},
                       {0.985, -0.020},
                       {0.985, 0.008},
                       {0.80, 0.030},
                       {0.50, 0.060},
                       {0.24, 0.066},
                       {0.08, 0.046}}};
      profile.canopy = {{{0.10, -0.058}, {0.16, -0.108}, {0.24, -0.116}, {0.36, -0.104}, {0.44, -0.060}}};
      profile.nacelle = {{{0.15, -0.030},
                          {0.20, -0.044},
                          {0.34, -0.042},
                          {0.52, -0.008},
                          {0.60, 0.030},
                          {0.48, 0.052},
                          {0.30, 0.058},
                          {0.18, 0.050},
                          {0.15, 0.034}}};
      profile.nacelle_x = 0.145;
      profile.nose_propeller = false;
      profile.propeller_radius = 0.125;
      break;
    case Shape::kTwinBoom:
      profile.body = {{{0.10, -0.004},
                       {0.16, -0.036},
                       {0.26, -0.050},
                       {0.42, -0.052},
                       {0.62, -0.020},
                       {0.66, 0.006},
                       {0.52, 0.040},
                       {0.28, 0.048},
                       {0.14, 0.030}}};
      profile.fin = {{{0.865, -0.010},
                      {0.895, -0.085},
                      {0.945, -0.105},
                      {0.99, -0.075},
                      {1.0, 0.02},
                      {0.985, 0.085},
                      {0.945, 0.095},
                      {0.905, 0.050}}};
      profile.canopy = {{{0.25, -0.046}, {0.30, -0.094}, {0.36, -0.104}, {0.43, -0.090}, {0.50, -0.040}}};
      profile.nacelle = {{{0.045, -0.030},
                          {0.12, -0.046},
                          {0.30, -0.044},
                          {0.55, -0.034},
                          {0.93, -0.014},
                          {0.94, 0.016},
                          {0.58, 0.040},
                          {0.40, 0.060},
                          {0.26, 0.054},
                          {0.10, 0.050},
                          {0.045, 0.032}}};
      profile.nacelle_x = 0.04;
      profile.nose_propeller = false;
      profile.propeller_radius = 0.13;
      break;
    case Shape::kHeavy:
      profile.body = {{{0.02, 0.0},
                       {0.04, -0.036},
                       {0.12, -0.056},
                       {0.24, -0.064},
                       {0.50, -0.058},
                       {0.78, -0.042},
                       {0.97, -0.028},
                       {0.995, -0.006},
                       {0.96, 0.012},
                       {0.72, 0.036},
                       {0.46, 0.062},
                       {0.20, 0.064},
                       {0.06, 0.044}}};
      profile.canopy = {{{0.13, -0.054}, {0.165, -0.086}, {0.21, -0.092}, {0.26, -0.084}, {0.30, -0.060}}};
      profile.fin = {
          {{0.66, -0.048}, {0.80, -0.085}, {0.885, -0.165}, {0.93, -0.180}, {0.975, -0.160}, {0.99, -0.02}}};
      profile.nacelle = {{{0.215, -0.016},
                          {0.24, -0.030},
                          {0.32, -0.030},
                          {0.42, 0.000},
                          {0.46, 0.020},
                          {0.36, 0.038},
                          {0.24, 0.042},
                          {0.215, 0.028}}};
      profile.nacelle_x = 0.21;
      profile.wing_from = 0.25;
      profile.wing_to = 0.52;
      profile.wing_y = 0.018;
      profile.nose_propeller = false;
      profile.propeller_radius = 0.085;
      profile.spinner = 0.012;
      break;
    case Shape::kJet:
      profile.body = {{{0.01, 0.0},
                       {0.08, -0.034},
                       {0.22, -0.058},
                       {0.42, -0.072},
                       {0.62, -0.064},
                       {0.84, -0.034},
                       {0.99, -0.018},
                       {0.99, 0.004},
                       {0.78, 0.034},
                       {0.50, 0.062},
                       {0.24, 0.052},
                       {0.08, 0.028}}};
      profile.nacelle = {{{0.24, 0.016},
                          {0.27, -0.002},
                          {0.40, -0.004},
                          {0.58, 0.012},
                          {0.68, 0.034},
                          {0.58, 0.068},
                          {0.40, 0.084},
                          {0.27, 0.076},
                          {0.24, 0.058}}};
      profile.nose_propeller = false;
      profile.propeller_radius = 0;
      profile.exhausts = false;
      break;
    case Shape::kFlyingBomb:
      profile.body = {{{0.01, 0.03},
                       {0.08, -0.004},
                       {0.20, -0.020},
                       {0.60, -0.020},
                       {0.84, 0.010},
                       {0.86, 0.040},
                       {0.60, 0.080},
                       {0.20, 0.080},
                       {0.08, 0.062}}};
      profile.fin = {{{0.72, -0.01}, {0.76, -0.10}, {0.82, -0.10}, {0.85, 0.02}}};
      profile.canopy = {};
      profile.nacelle = {{{0.52, -0.135},
                          {0.55, -0.150},
                          {0.68, -0.145},
                          {0.98, -0.120},
                          {1.0, -0.108},
                          {0.98, -0.092},
                          {0.68, -0.085},
                          {0.55, -0.090},
                          {0.52, -0.105}}};
      profile.nose_propeller = false;
      profile.propeller_radius = 0;
      profile.exhausts = false;
      break;
    case Shape::kInline:
      break;
  }
  return profile;
}

void shade(QPainter& painter, const QPainterPath& path) {
  const QRectF bounds = path.boundingRect();
  QLinearGradient light(bounds.topLeft(), bounds.bottomLeft());
  light.setColorAt(0.0, QColor(255, 255, 255, 30));
  light.setColorAt(0.25, QColor(255, 255, 255, 70));
  light.setColorAt(0.55, QColor(0, 0, 0, 0));
  light.setColorAt(1.0, QColor(0, 0, 0, 130));
  painter.fillPath(path, light);
  painter.strokePath(path, QPen(QColor(0, 0, 0, 80), 0.002));
}

void draw_propeller(QPainter& painter, double x, double y, double radius, double spinner, unsigned int tone) {
  if (radius <= 0) {
    return;
  }
  QRadialGradient disc(QPointF(x, y), radius);
  disc.setColorAt(0.0, QColor(40, 44, 50, 70));
  disc.setColorAt(0.9, QColor(60, 64, 70, 46));
  disc.setColorAt(0.95, QColor(220, 200, 120, 80));
  disc.setColorAt(1.0, QColor(220, 200, 120, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(disc);
  painter.drawEllipse(QPointF(x, y), radius * 0.16, radius);
  QPainterPath hub;
  hub.moveTo(x + 0.012, y - spinner);
  hub.quadTo(x - spinner * 0.9, y - spinner * 0.9, x - spinner * 1.25, y);
  hub.quadTo(x - spinner * 0.9, y + spinner * 0.9, x + 0.012, y + spinner);
  hub.closeSubpath();
  painter.fillPath(hub, colour(tone));
  shade(painter, hub);
}

void draw_skin(QPainter& painter, const QPainterPath& area, const Paint& paint, double demarcation,
               std::uint64_t seed) {
  painter.fillPath(area, colour(paint.upper));
  draw_camouflage(painter, paint, area, seed);
  if (paint.camouflage != Camouflage::kMetal) {
    QLinearGradient under(0, demarcation - 0.012, 0, demarcation + 0.012);
    under.setColorAt(0, faded(colour(paint.under), 0));
    under.setColorAt(1, colour(paint.under));
    painter.fillPath(area, under);
  }
}

}  // namespace

QPainterPath smooth_path(const QPolygonF& points) {
  QPainterPath path;
  const auto count = points.size();
  for (qsizetype k = 0; k < count; ++k) {
    const QPointF before = points[(k + count - 1) % count];
    const QPointF here = points[k];
    const QPointF next = points[(k + 1) % count];
    const QPointF after = points[(k + 2) % count];
    if (k == 0) {
      path.moveTo(here);
    }
    path.cubicTo(here + (next - before) / 6, next - (after - here) / 6, next);
  }
  path.closeSubpath();
  return path;
}

void draw_from_side(QPainter& painter, Shape shape, const Paint& paint, std::uint64_t seed) {
  const Profile profile = profile_of(shape);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-0.5, 0);

  const QPainterPath fin = smooth_path(profile.fin);
  if (!profile.canopy.isEmpty()) {
    const QPainterPath glass = smooth_path(profile.canopy);
    QLinearGradient shine(glass.boundingRect().topLeft(), glass.boundingRect().bottomRight());
    shine.setColorAt(0, QColor(214, 232, 244));
    shine.setColorAt(0.5, QColor(110, 138, 160));
    shine.setColorAt(1, QColor(52, 66, 80));
    painter.fillPath(glass, shine);
    painter.save();
    painter.setClipPath(glass, Qt::IntersectClip);
    painter.setPen(QPen(QColor(40, 46, 44, 200), 0.004));
    const QRectF bounds = glass.boundingRect();
    for (const double share : {0.28, 0.55, 0.75}) {
      const double x = bounds.left() + bounds.width() * share;
      painter.drawLine(QPointF(x - 0.006, bounds.bottom()), QPointF(x + 0.006, bounds.top()));
    }
    painter.restore();
    painter.strokePath(glass, QPen(QColor(36, 40, 38, 200), 0.003));
  }
  draw_skin(painter, fin, paint, 1, seed + 1);
  if (paint.banded) {
    painter.save();
    painter.setClipPath(fin, Qt::IntersectClip);
    painter.fillRect(QRectF(0.95, -0.3, 0.2, 0.6), colour(paint.band));
    painter.restore();
  }
  shade(painter, fin);
  painter.setPen(QPen(QColor(0, 0, 0, 90), 0.002));
  painter.drawLine(QPointF(0.952, fin.boundingRect().top() + 0.01), QPointF(0.956, 0.0));

  const QPainterPath body = smooth_path(profile.body);
  draw_skin(painter, body, paint, body.boundingRect().center().y() + 0.022, seed);
  painter.save();
  painter.setClipPath(body, Qt::IntersectClip);
  if (paint.stripes) {
    for (int k = 0; k < 5; ++k) {
      painter.fillRect(QRectF(0.62 + 0.022 * k, -0.3, 0.022, 0.6),
                       k % 2 == 0 ? QColor(236, 236, 230) : QColor(30, 30, 32));
    }
  } else if (paint.banded) {
    painter.fillRect(QRectF(0.74, -0.3, 0.055, 0.6), colour(paint.band));
  }
  painter.setPen(QPen(QColor(0, 0, 0, 48), 0.002));
  for (const double x : {0.09, 0.19, 0.27, 0.36, 0.55, 0.66, 0.80, 0.90}) {
    painter.drawLine(QPointF(x, -0.2), QPointF(x + 0.004, 0.2));
  }
  painter.drawLine(QPointF(0.05, -0.012), QPointF(0.98, -0.004));
  painter.restore();
  shade(painter, body);

  if (profile.exhausts && profile.nose_propeller) {
    for (int k = 0; k < 6; ++k) {
      painter.fillRect(QRectF(0.105 + 0.022 * k, -0.030, 0.014, 0.011), QColor(52, 40, 34));
    }
    QLinearGradient soot(0.23, 0, 0.42, 0);
    soot.setColorAt(0, QColor(30, 26, 24, 110));
    soot.setColorAt(1, QColor(30, 26, 24, 0));
    painter.fillRect(QRectF(0.23, -0.032, 0.19, 0.018), soot);
  }

  const double depth = profile.wing_to - profile.wing_from;
  const QPainterPath wing = smooth_path({{{profile.wing_from, profile.wing_y},
                                          {profile.wing_from + depth * 0.25, profile.wing_y - 0.022},
                                          {profile.wing_to, profile.wing_y - 0.004},
                                          {profile.wing_from + depth * 0.35, profile.wing_y + 0.014}}});
  painter.fillPath(wing, colour(paint.upper).darker(112));
  shade(painter, wing);
  const QPainterPath tailplane =
      smooth_path({{{0.865, -0.030}, {0.905, -0.038}, {0.975, -0.030}, {0.905, -0.022}}});
  painter.fillPath(tailplane, colour(paint.upper).darker(118));
  shade(painter, tailplane);

  if (!profile.nacelle.isEmpty()) {
    const QPainterPath nacelle = smooth_path(profile.nacelle);
    draw_skin(painter, nacelle, paint, nacelle.boundingRect().center().y() + 0.016, seed + 2);
    shade(painter, nacelle);
    draw_propeller(painter, profile.nacelle_x, nacelle.boundingRect().center().y() - 0.004,
                   profile.propeller_radius, profile.spinner * 0.62, paint.spinner);
  }
  if (profile.nose_propeller) {
    draw_propeller(painter, profile.propeller_x, 0.0, profile.propeller_radius, profile.spinner,
                   paint.spinner);
  }
  painter.restore();
}

QPainterPath distant_outline(Shape shape) {
  QPainterPath path;
  path.addPolygon(QPolygonF({{-0.5, -0.035},
                             {-0.06, 0.0},
                             {-0.045, -0.03},
                             {0.0, -0.05},
                             {0.045, -0.03},
                             {0.06, 0.0},
                             {0.5, -0.035},
                             {0.5, -0.025},
                             {0.05, 0.03},
                             {0.0, 0.055},
                             {-0.05, 0.03},
                             {-0.5, -0.025}}));
  path.addRect(QRectF(-0.008, -0.13, 0.016, 0.1));
  path.addRect(QRectF(-0.17, -0.06, 0.34, 0.012));
  if (shape == Shape::kHeavy || shape == Shape::kTwin) {
    for (const double x : {-0.3, -0.16, 0.16, 0.3}) {
      if (shape == Shape::kHeavy || x * x < 0.05) {
        path.addEllipse(QPointF(x, 0.0), 0.026, 0.026);
      }
    }
  }
  path.setFillRule(Qt::WindingFill);
  return path;
}

}  // namespace vorlund::sample

// The thirty aircraft types of the sample folder.
#include "sample_aircraft.h"

namespace vorlund::sample {
namespace {

using enum Side;
using enum Role;
constexpr Flyable kFly = Flyable::kYes;
constexpr Flyable kStays = Flyable::kNo;

constexpr std::array<AircraftType, 30> kTypes = {{
    {"p38h", "P-38H Lightning", "P38H", kAmerican, kFighterBomber, kFly, Shape::kTwinBoom, 11200, 7},
    {"p38j", "P-38J Lightning", "P38J", kAmerican, kFighterBomber, kFly, Shape::kTwinBoom, 15400, 7},
    {"p47c", "P-47C Thunderbolt", "P47C", kAmerican, kFighterBomber, kFly, Shape::kRadial, 11500, 7},
    {"p47d", "P-47D Thunderbolt", "P47D", kAmerican, kFighterBomber, kFly, Shape::kRadial, 13900, 7},
    {"p51b", "P-51B Mustang", "P51B", kAmerican, kFighter, kFly, Shape::kInline, 10100, 7},
    {"p51d", "P-51D Mustang", "P51D", kAmerican, kFighterBomber, kFly, Shape::kInline, 10000, 7},
    {"bb17", "B-17G Fortress", "BB17", kAmerican, kBomber, kStays, Shape::kHeavy, 52000, 3},
    {"b24a", "B-24J Liberator", "B24A", kAmerican, kBomber, kStays, Shape::kHeavy, 49800, 3},
    {"b26a", "B-26B Marauder", "B26A", kAmerican, kBomber, kStays, Shape::kTwin, 26400, 3},
    {"hurr", "Hurricane I", "Hurr", kBritish, kFighter, kFly, Shape::kInline, 3600, 7},
    {"sp2a", "Spitfire IIA", "Sp2a", kBritish, kFighter, kFly, Shape::kElliptical, 3300, 7},
    {"sp09", "Spitfire IX", "Sp09", kBritish, kFighter, kFly, Shape::kElliptical, 3400, 7},
    {"sp14", "Spitfire XIV", "Sp14", kBritish, kFighter, kFly, Shape::kElliptical, 4400, 7},
    {"typh", "Typhoon IB", "Typh", kBritish, kFighterBomber, kFly, Shape::kInline, 6100, 7},
    {"temp", "Tempest V", "Temp", kBritish, kFighterBomber, kFly, Shape::kElliptical, 6400, 7},
    {"mosq", "Mosquito VI", "Mosq", kAllied, kBomber, kStays, Shape::kTwin, 18200, 3},
    {"109e", "Bf 109E", "109E", kGerman, kFighter, kFly, Shape::kInline, 3000, 7},
    {"109g", "Bf 109G", "109G", kGerman, kFighter, kFly, Shape::kInline, 3050, 7},
    {"109k", "Bf 109K", "109K", kGerman, kFighter, kFly, Shape::kInline, 3100, 7},
    {"110c", "Bf 110C", "110C", kGerman, kFighterBomber, kFly, Shape::kTwin, 9600, 7},
    {"110g", "Bf 110G", "110G", kGerman, kFighterBomber, kFly, Shape::kTwin, 9900, 7},
    {"m410", "Me 410A", "M410", kGerman, kBomber, kStays, Shape::kTwin, 18400, 3},
    {"190a", "Fw 190A", "190A", kGerman, kFighterBomber, kFly, Shape::kRadial, 4200, 7},
    {"190d", "Fw 190D", "190D", kGerman, kFighter, kFly, Shape::kInline, 4300, 7},
    {"262a", "Me 262A", "262A", kGerman, kFighterBomber, kFly, Shape::kJet, 14200, 7},
    {"j88a", "Ju 88A", "J88A", kGerman, kBomber, kStays, Shape::kTwin, 23100, 3},
    {"j88c", "Ju 88C", "J88C", kGerman, kFighterBomber, kStays, Shape::kTwin, 22800, 3},
    {"ju87", "Ju 87D", "Ju87", kGerman, kBomber, kStays, Shape::kDiveBomber, 6000, 3},
    {"h111", "He 111H", "H111", kGerman, kBomber, kStays, Shape::kTwin, 27400, 3},
    {"v1v1", "V-1", "V1v1", kGerman, kBomber, kStays, Shape::kFlyingBomb, 4700, 3},
}};

}  // namespace

const std::array<AircraftType, 30>& aircraft_types() {
  return kTypes;
}

const AircraftType& aircraft_type(std::string_view code) {
  std::size_t index = 0;
  while (kTypes.at(index).code != code) {
    ++index;
  }
  return kTypes[index];
}

}  // namespace vorlund::sample

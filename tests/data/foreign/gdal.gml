<?xml version="1.0" encoding="utf-8" ?>
<ogr:FeatureCollection
     gml:id="aFeatureCollection"
     xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"
     xsi:schemaLocation="http://ogr.maptools.org/ og.xsd"
     xmlns:ogr="http://ogr.maptools.org/"
     xmlns:gml="http://www.opengis.net/gml/3.2">
  <gml:boundedBy><gml:Envelope srsName="urn:ogc:def:crs:EPSG::4326"><gml:lowerCorner>2 1</gml:lowerCorner><gml:upperCorner>4 3</gml:upperCorner></gml:Envelope></gml:boundedBy>
                                                                                                                                                                              
  <ogr:featureMember>
    <ogr:p gml:id="p.0">
      <gml:boundedBy><gml:Envelope srsName="urn:ogc:def:crs:EPSG::4326"><gml:lowerCorner>2 1</gml:lowerCorner><gml:upperCorner>2 1</gml:upperCorner></gml:Envelope></gml:boundedBy>
      <ogr:geometryProperty><gml:Point srsName="urn:ogc:def:crs:EPSG::4326" gml:id="p.geom.0"><gml:pos>2 1</gml:pos></gml:Point></ogr:geometryProperty>
      <ogr:a>1</ogr:a>
    </ogr:p>
  </ogr:featureMember>
  <ogr:featureMember>
    <ogr:p gml:id="p.1">
      <gml:boundedBy><gml:Envelope srsName="urn:ogc:def:crs:EPSG::4326"><gml:lowerCorner>4 3</gml:lowerCorner><gml:upperCorner>4 3</gml:upperCorner></gml:Envelope></gml:boundedBy>
      <ogr:geometryProperty><gml:Point srsName="urn:ogc:def:crs:EPSG::4326" gml:id="p.geom.1"><gml:pos>4 3</gml:pos></gml:Point></ogr:geometryProperty>
      <ogr:a>2</ogr:a>
    </ogr:p>
  </ogr:featureMember>
</ogr:FeatureCollection>
